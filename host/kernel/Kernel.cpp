#include "kernel/Kernel.h"

#include "kernel/ApplicationLock.h"
#include "kernel/AxisRangeRules.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/Layout.h"
#include "kernel/MouseModes.h"
#include "kernel/PickList.h"
#include "kernel/PlotAxes.h"
#include "kernel/ProbeService.h"
#include "kernel/SilentFrontEnd.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"
#include "kernel/VariableMemory.h"
#include "kernel/macro/MacroRecorder.h"
#include "kernel/streamtrace/StreamtracePaths.h"

namespace vantrix::kernel {

Kernel& Kernel::instance()
{
    static Kernel kernel;
    return kernel;
}

Kernel::Kernel()
    : m_stateChanges(std::make_unique<StateChanges>())
    , m_undo(std::make_unique<UndoStack>(*m_stateChanges))
    , m_macroRecorder(std::make_unique<MacroRecorder>(*m_stateChanges))
    , m_lock(std::make_unique<ApplicationLock>(*m_undo, *m_macroRecorder))
    , m_style(std::make_unique<StyleStore>(*m_undo, *m_stateChanges))
    , m_document(std::make_unique<Document>(*m_undo, *m_stateChanges, *m_style))
    , m_texts(std::make_unique<Texts>(*m_document, *m_undo, *m_stateChanges))
    , m_geometries(std::make_unique<Geometries>(*m_document, *m_undo, *m_stateChanges))
    , m_streamtraces(std::make_unique<Streamtraces>(*m_document, *m_undo, *m_stateChanges))
    , m_streamtracePaths(std::make_unique<StreamtracePaths>(*m_document, *m_style))
    , m_mouseModes(std::make_unique<MouseModes>(*m_document, *m_style, *m_stateChanges, *m_undo))
    , m_probes(std::make_unique<ProbeService>(*this))
    , m_variableMemory(std::make_unique<VariableMemory>(*m_document, *m_style, *m_stateChanges, *m_undo))
    , m_pickList(std::make_unique<PickList>(*this))
    , m_layout(std::make_unique<Layout>(*this))
    , m_noFrontEnd(std::make_unique<SilentFrontEnd>())
{
    m_style->setDocument(*m_document);
    m_style->setRule(m_style->entry("PlotType"), [this](long frameId, long /*object*/, const StyleData& plotType) {
        const Frame* frame = m_document->frameById(frameId);
        return whyPlotTypeIsRefused(frame ? frame->dataSet().get() : nullptr,
                                    static_cast<PlotType_e>(std::get<long>(plotType)));
    });
    AxisRangeRules::install(*m_style, *m_document);
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
    m_layout->clear();
}

} // namespace vantrix::kernel
