#include "view/mouse/ClickTool.h"

#include "kernel/Frame.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QMouseEvent>

namespace vantrix::view {

void ClickTool::press(const QMouseEvent& event)
{
    const kernel::Frame* frame = context().frame();
    const FramePlot* plot = frame ? context().renderer.plot(frame->id()) : nullptr;
    if (!plot || context().frameAt(event.position()) == 0) {
        return;
    }
    const QPointF at = context().inFrame(event.position());
    std::array<double, 3> point{0.0, 0.0, 0.0};
    bool isHit = false;
    if (const auto flat = plot->dataAt(at)) {
        point = {flat->x(), flat->y(), 0.0};
        isHit = true;
    } else if (const auto surface = context().renderer.pick(frame->id(), at)) {
        point = *surface;
        isHit = true;
    }
    Q_EMIT context().widget.clickedInMode(m_mode, frame->id(), point[0], point[1], point[2], isHit);
}

} // namespace vantrix::view
