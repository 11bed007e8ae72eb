#include "view/mouse/SelectorTool.h"

#include "api/VtxUtilBase.h"
#include "api/VtxUtilPick.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Frame.h"
#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "kernel/macro/MacroPlayer.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace vantrix::view {

void SelectorTool::press(const QMouseEvent& event)
{
    const bool collect = event.modifiers() & Qt::ControlModifier;
    cancel();
    if (collect && runMacroFunction(event.position())) {
        return;
    }
    if (!collect) {
        m_resize = GeometryResize::begin(context(), event.position());
    }
    if (!collect && !isBegun()) {
        begin(event.position());
    }
    if (!isBegun()) {
        pick(event.position(), collect);
        begin(event.position());
    }
}

bool SelectorTool::isBegun() const
{
    return m_resize.isBegun() || m_drag.isBegun() || m_objects.isBegun();
}

void SelectorTool::drag(const QMouseEvent& event)
{
    const bool isFree = event.modifiers() & Qt::AltModifier;
    if (m_resize.isBegun()) {
        m_resize.drag(context(), event.position(), isFree);
    } else if (m_drag.isBegun()) {
        m_drag.drag(context(), event.position(), isFree);
    } else if (m_objects.isBegun()) {
        m_objects.drag(context(), event.position(), isFree);
    }
}

void SelectorTool::release(const QMouseEvent& /*event*/)
{
    cancel();
}

void SelectorTool::cancel()
{
    m_resize = {};
    m_drag = {};
    m_objects = {};
}

bool SelectorTool::runMacroFunction(QPointF place)
{
    kernel::Kernel& kernel = context().kernel;
    const auto object = context().objectAt(place);
    const kernel::Text* text =
        object && object->type == PickObject_Text ? kernel.texts().find(object->number) : nullptr;
    const kernel::Geometry* geometry =
        object && object->type == PickObject_Geometry ? kernel.geometries().find(object->number) : nullptr;
    const std::string commands = text       ? text->macroFunctionCommand
                                 : geometry ? geometry->macroFunctionCommand
                                            : std::string();
    if (commands.empty()) {
        return false;
    }
    try {
        kernel::MacroPlayer(kernel).runText(commands, "macro function");
    } catch (const std::exception& failure) {
        Q_EMIT context().widget.statusMessage(QString::fromStdString(failure.what()));
    }
    return true;
}

void SelectorTool::begin(QPointF place)
{
    m_drag = FrameDrag::begin(context(), place);
    if (!m_drag.isBegun()) {
        m_objects = ObjectDrag::begin(context(), place);
    }
}

void SelectorTool::hover(QPointF place)
{
    const GeometryResize resize = GeometryResize::begin(context(), place);
    context().widget.setCursor(resize.isBegun() ? resize.cursor() : FrameDrag::byHandle(context(), place).cursor());
}

void SelectorTool::pick(QPointF place, bool collect)
{
    const kernel::ActionLock lock(context().kernel.lock());
    const QPointF paper = context().paper.toPaper(place);
    const double height = context().page() ? context().renderer.paperSize(*context().page()).height() : 0.0;
    VtxUtilPickAtPosition(paper.x(), height - paper.y(), collect); // a click where nothing is picks nothing
}

void SelectorTool::doubleClick(const QMouseEvent& /*event*/)
{
    if (VtxUtilPickListGetCount() > 0) {
        Q_EMIT context().widget.objectActivated(VtxUtilPickListGetType(1));
    }
}

bool SelectorTool::keyPress(const QKeyEvent& event)
{
    const kernel::ActionLock lock(context().kernel.lock());
    switch (event.key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (!VtxUtilPickDelete()) {
            Q_EMIT context().widget.statusMessage(QString::fromStdString(context().kernel.lastError()));
        }
        return true;
    case Qt::Key_Escape:
        VtxUtilPickClear();
        return true;
    default:
        return false;
    }
}

} // namespace vantrix::view
