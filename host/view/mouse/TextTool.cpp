#include "view/mouse/TextTool.h"

#include "api/VtxUtilFrame.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Kernel.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace vantrix::view {

void TextTool::release(const QMouseEvent& event)
{
    if (context().frame() && context().frameAt(event.position()) != 0) {
        const QPointF place = context().percentOfFrame(context().pointedPlace(event));
        Q_EMIT context().widget.textPlaceClicked(place.x(), place.y());
    }
}

bool TextTool::keyPress(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape) {
        return false;
    }
    const kernel::ActionLock lock(context().kernel.lock());
    VtxUtilMouseSetMode(MouseMode_Selector);
    return true;
}

} // namespace vantrix::view
