#include "kernel/Kernel.h"

#include "kernel/ApplicationLock.h"
#include "kernel/Document.h"
#include "kernel/MouseModes.h"
#include "kernel/ProbeService.h"
#include "kernel/SilentFrontEnd.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "kernel/Texts.h"
#include "kernel/UndoStack.h"
#include "kernel/VariableMemory.h"

namespace vantrix::kernel {

namespace {

/* A plot of data needs data; a sketch needs none. */
std::string whyPlotTypeIsRefused(const Document& document, long frameId, const StyleData& plotType)
{
    const Frame* frame = document.frameById(frameId);
    const DataSet* data = frame ? frame->dataSet().get() : nullptr;
    if (std::get<long>(plotType) == PlotType_Sketch) {
        return {};
    }
    if (!data || data->zoneCount() == 0) {
        return "the frame has no data; read or create some first.";
    }
    const long needed = std::get<long>(plotType) == PlotType_Cartesian3D ? 3 : 2;
    if (data->variableCount() < needed) {
        return "the plot needs " + std::to_string(needed) + " variables as axes, and the data have " +
               std::to_string(data->variableCount()) + '.';
    }
    return {};
}

} // namespace

Kernel& Kernel::instance()
{
    static Kernel kernel;
    return kernel;
}

Kernel::Kernel()
    : m_stateChanges(std::make_unique<StateChanges>())
    , m_undo(std::make_unique<UndoStack>(*m_stateChanges))
    , m_lock(std::make_unique<ApplicationLock>(*m_undo))
    , m_style(std::make_unique<StyleStore>(*m_undo, *m_stateChanges))
    , m_document(std::make_unique<Document>(*m_undo, *m_stateChanges, *m_style))
    , m_texts(std::make_unique<Texts>(*m_document, *m_undo, *m_stateChanges))
    , m_mouseModes(std::make_unique<MouseModes>(*m_document, *m_style, *m_stateChanges))
    , m_probes(std::make_unique<ProbeService>(*this))
    , m_variableMemory(std::make_unique<VariableMemory>(*m_document, *m_style, *m_stateChanges, *m_undo))
    , m_noFrontEnd(std::make_unique<SilentFrontEnd>())
{
    m_style->setDocument(*m_document);
    m_style->setRule(m_style->entry("PlotType"), [this](long frameId, const StyleData& plotType) {
        return whyPlotTypeIsRefused(*m_document, frameId, plotType);
    });
    m_document->reset();
}

Kernel::~Kernel()
{
    m_undo->clear(); // changes refer to the document and the style
}

FrontEnd& Kernel::frontEnd() const
{
    return m_frontEnd ? *m_frontEnd : *m_noFrontEnd;
}

void Kernel::setFrontEnd(FrontEnd* frontEnd)
{
    m_frontEnd = frontEnd;
}

void Kernel::beginWait()
{
    if (m_waits++ == 0) {
        frontEnd().setBusy(true);
    }
}

void Kernel::endWait()
{
    if (m_waits > 0 && --m_waits == 0) {
        frontEnd().setBusy(false);
    }
}

void Kernel::reset()
{
    m_undo->clear();
    m_style->clear();
    m_document->reset();
    m_probes->reset();
    m_stateChanges->send(StateChange_NewLayout);
}

} // namespace vantrix::kernel
