#include "kernel/MouseModes.h"

#include "kernel/Document.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"

namespace vantrix::kernel {

MouseModes::MouseModes(const Document& document, const StyleStore& style, StateChanges& changes)
    : m_document(document)
    , m_style(style)
    , m_changes(changes)
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
        m_mode = mode;
        m_changes.send(StateChange_MouseMode);
    }
    return true;
}

void MouseModes::stateChanged(VtxStateChangeHandle, void* modes)
{
    auto* self = static_cast<MouseModes*>(modes);
    if (!self->isValid(self->m_mode)) {
        self->set(MouseMode_Selector);
    }
}

} // namespace vantrix::kernel
