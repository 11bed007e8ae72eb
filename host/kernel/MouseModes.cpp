#include "kernel/MouseModes.h"

#include "kernel/Document.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"

namespace vantrix::kernel {

/* Another mode was set. */
class MouseModes::Change : public UndoableChange
{
public:
    explicit Change(MouseModes& modes)
        : m_modes(modes)
        , m_before(modes.m_mode)
    {}

    void undo() override { m_modes.put(m_before); }
    void redo() override {}
    std::size_t memory(bool /*isDone*/) const override { return 0; }
    bool isTransient() const override { return true; }

private:
    MouseModes& m_modes;
    MouseMode_e m_before;
};

MouseModes::MouseModes(const Document& document, const StyleStore& style, StateChanges& changes, UndoStack& undo)
    : m_document(document)
    , m_style(style)
    , m_changes(changes)
    , m_undo(undo)
    , m_plotType(style.entry("PlotType"))
{
    m_changes.addListener(&MouseModes::stateChanged, this);
}

MouseModes::~MouseModes()
{
    m_changes.removeListener(&MouseModes::stateChanged, this);
}

bool MouseModes::isValid(MouseMode_e mode) const
{
    const Frame* frame = m_document.activeFrame();
    const long plotType = frame ? m_style.integer(frame->id(), m_plotType) : long{PlotType_Sketch};
    const bool isField = plotType == PlotType_Cartesian2D || plotType == PlotType_Cartesian3D;
    const bool hasData = frame && frame->dataSet() && frame->dataSet()->zoneCount() > 0;
    switch (mode) {
    case MouseMode_Selector:
        return true;
    case MouseMode_CreateFrame:
        return m_document.activePage() != nullptr;
    case MouseMode_Translate:
        return frame && plotType != PlotType_PolarLine; // its centre stays where it is
    case MouseMode_Zoom:
    case MouseMode_Text:
        return frame != nullptr;
    case MouseMode_Rotate:
        return hasData && plotType == PlotType_Cartesian3D;
    case MouseMode_Probe:
        return hasData && plotType != PlotType_Sketch;
    case MouseMode_Streamtrace:
        return hasData && isField;
    }
    return false;
}

bool MouseModes::set(MouseMode_e mode)
{
    if (!isValid(mode)) {
        return false;
    }
    if (mode != m_mode) {
        m_undo.record(std::make_unique<Change>(*this));
        put(mode);
    }
    return true;
}

void MouseModes::put(MouseMode_e mode)
{
    m_mode = mode;
    m_changes.send(StateChange_MouseMode);
}

void MouseModes::stateChanged(VtxStateChangeHandle, void* modes)
{
    auto* self = static_cast<MouseModes*>(modes);
    if (!self->m_undo.isRollingBack() && !self->isValid(self->m_mode)) {
        self->set(MouseMode_Selector);
    }
}

} // namespace vantrix::kernel
