#include "view/mouse/ZoomTool.h"

#include "kernel/Frame.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QMouseEvent>

#include <cmath>
#include <utility>

namespace vantrix::view {

void ZoomTool::press(const QMouseEvent& event)
{
    const FramePlot* plot = context().activePlot();
    m_drag = !plot ? Drag::None : plot->camera || plot->polar ? Drag::Magnify : Drag::RubberBand;
    m_start = m_last = event.position();
}

void ZoomTool::drag(const QMouseEvent& event)
{
    const double down = event.position().y() - m_last.y();
    m_last = event.position();
    const FramePlot* plot = context().activePlot();
    if (m_drag == Drag::Magnify && plot) {
        context().renderer.setMoving(true);
        context().editor.begin("Zoom");
        context().editor.magnify(*context().frame(), *plot, std::pow(1.01, -down), plot->area.center());
        context().showMove();
    } else if (m_drag == Drag::RubberBand) {
        context().widget.update();
    }
}

void ZoomTool::release(const QMouseEvent& event)
{
    constexpr double leastPixels = 4.0;
    const FramePlot* plot = context().activePlot();
    if (std::exchange(m_drag, Drag::None) != Drag::RubberBand || !plot) {
        return;
    }
    const QRectF band =
        QRectF(context().inFrame(m_start), context().inFrame(event.position())).normalized().intersected(plot->area);
    const double inch = context().paper.inch();
    if (band.width() * inch > leastPixels && band.height() * inch > leastPixels) {
        context().editor.begin("Zoom");
        context().editor.showRect(*context().frame(), *plot, band);
    }
}

void ZoomTool::paint(QPainter& painter) const
{
    if (m_drag == Drag::RubberBand) {
        MouseContext::paintRubberBand(painter, m_start, m_last);
    }
}

} // namespace vantrix::view
