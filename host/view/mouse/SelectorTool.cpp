#include "view/mouse/SelectorTool.h"

#include "api/VtxUtilBase.h"
#include "api/VtxUtilPick.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace vantrix::view {

void SelectorTool::press(const QMouseEvent& event)
{
    const bool collect = event.modifiers() & Qt::ControlModifier;
    m_drag = collect ? FrameDrag() : FrameDrag::begin(context(), event.position());
    if (!m_drag.isBegun()) {
        pick(event.position(), collect);
        m_drag = FrameDrag::begin(context(), event.position());
    }
}

void SelectorTool::drag(const QMouseEvent& event)
{
    if (m_drag.isBegun()) {
        m_drag.drag(context(), event.position(), event.modifiers() & Qt::AltModifier);
    }
}

void SelectorTool::release(const QMouseEvent& /*event*/)
{
    m_drag = {};
}

void SelectorTool::hover(QPointF place)
{
    context().widget.setCursor(FrameDrag::byHandle(context(), place).cursor());
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
