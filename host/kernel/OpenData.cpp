#include "kernel/OpenData.h"

#include "kernel/ApplicationLock.h"
#include "kernel/DataError.h"
#include "kernel/DataHistory.h"
#include "kernel/DataReader.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/PlotDefaults.h"
#include "kernel/Progress.h"
#include "kernel/SampleData.h"
#include "kernel/UndoStack.h"
#include "kernel/macro/MacroRecorder.h"

#include <filesystem>

namespace vantrix::kernel {

void OpenData::files(const std::vector<std::string>& names)
{
    DataSet read = m_kernel.document().newDataSet();
    {
        const Progress progress(m_kernel.frontEnd(), "Reading data");
        DataReader::read(names, read, progress.report());
    }
    std::vector<std::string> paths;
    paths.reserve(names.size());
    for (const std::string& name : names) {
        paths.push_back(std::filesystem::absolute(name).string());
    }
    show(std::move(read), "Open", DataHistory::reading(paths));
}

void OpenData::sample(const std::string& name)
{
    DataSet made = m_kernel.document().newDataSet();
    SampleData::make(name, made);
    show(std::move(made), "Open Sample", DataHistory::readingSample(name));
}

void OpenData::show(DataSet dataSet, const char* stepName, MacroCommand command)
{
    dataSet.history = {std::make_shared<const MacroCommand>(command)};
    Frame* frame = m_kernel.document().activeFrame();
    if (!frame) {
        throw DataError("There is no frame to show the data in. Create a frame first.");
    }
    const ActionLock lock(m_kernel.lock());
    MacroRecorder::Call call(m_kernel.macroRecorder(), m_kernel.lock().isRecorded());
    m_kernel.undoStack().nameStep(stepName);
    m_kernel.document().attachDataSet(*frame, std::make_shared<const DataSet>(std::move(dataSet)));
    PlotDefaults::apply(*frame);
    if (call.isDescribed()) {
        call.succeeded(std::move(command));
    }
}

} // namespace vantrix::kernel
