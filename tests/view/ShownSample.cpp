#include "view/ShownSample.h"

#include "kernel/ApplicationLock.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/PlotDefaults.h"
#include "kernel/SampleData.h"

#include <stdexcept>

using namespace vantrix;

ShownSample::ShownSample(const std::string& name, PlotType_e type)
    : kernel(kernel::Kernel::instance())
{
    kernel.reset();
    kernel.lock().start(false);
    kernel::DataSet dataSet = kernel.document().newDataSet();
    kernel::SampleData::make(name, dataSet);
    kernel.document().attachDataSet(frame(), std::make_shared<const kernel::DataSet>(std::move(dataSet)));
    kernel::PlotDefaults::apply(frame());
    set("PlotType", long{type});
    set("FieldLayers/ShowContour", 1L);
    kernel.lock().finish();
}

ShownSample::~ShownSample()
{
    kernel.reset();
}

kernel::Frame& ShownSample::frame() const
{
    return *kernel.document().activeFrame();
}

void ShownSample::set(const std::string& path, const kernel::StyleData& value, long offset)
{
    kernel.lock().start(true);
    kernel::StyleStore& style = kernel.style();
    if (style.setOf(frame().id(), style.entry(path.c_str()), offset, -1, value) != SetValueReturnCode_Ok) {
        throw std::logic_error(path + ": " + style.lastError());
    }
    kernel.lock().finish();
}

double ShownSample::real(const std::string& path, long offset) const
{
    return kernel.style().real(frame().id(), kernel.style().entry(path.c_str()), offset);
}
