#include "view/mouse/CreateFrameTool.h"

#include "api/VtxUtilDocument.h"
#include "api/VtxUtilFrame.h"
#include "api/VtxUtilPick.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QMouseEvent>

#include <utility>

namespace vantrix::view {

void CreateFrameTool::press(const QMouseEvent& event)
{
    m_isDragging = context().page() != nullptr;
    m_from = m_to = context().pointedPlace(event);
}

void CreateFrameTool::drag(const QMouseEvent& event)
{
    m_to = context().pointedPlace(event);
    context().widget.update();
}

void CreateFrameTool::release(const QMouseEvent& event)
{
    m_to = context().pointedPlace(event);
    const QRectF rect = QRectF(m_from, m_to).normalized();
    if (!std::exchange(m_isDragging, false) || rect.isEmpty()) {
        return;
    }
    {
        const kernel::ActionLock lock(context().kernel.lock());
        if (VtxUtilFrameCreate(rect.left(), rect.top(), rect.width(), rect.height())) {
            VtxUtilPickClear();
            VtxUtilPickFrame(VtxUtilFrameGetUniqueID());
            VtxUtilMouseSetMode(MouseMode_Selector);
            return;
        }
    }
    Q_EMIT context().widget.statusMessage(QString::fromStdString(context().kernel.lastError()));
}

void CreateFrameTool::paint(QPainter& painter) const
{
    if (m_isDragging) {
        MouseContext::paintRubberBand(painter, context().paper.toWidget(m_from), context().paper.toWidget(m_to));
    }
}

} // namespace vantrix::view
