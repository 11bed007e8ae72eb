#include "view/mouse/RotateTool.h"

#include "kernel/Frame.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QMouseEvent>

namespace vantrix::view {

void RotateTool::press(const QMouseEvent& event)
{
    m_last = event.position();
}

void RotateTool::drag(const QMouseEvent& event)
{
    constexpr double degreesPerPixel = 0.4;
    const QPointF by = event.position() - m_last;
    m_last = event.position();
    const FramePlot* plot = context().activePlot();
    if (plot && plot->camera) {
        context().renderer.setMoving(true);
        context().editor.begin("Rotate");
        context().editor.turn(*context().frame(), *plot, -by.x() * degreesPerPixel, -by.y() * degreesPerPixel);
        context().showMove();
    }
}

} // namespace vantrix::view
