#include "view/mouse/TranslateTool.h"

#include "kernel/Frame.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QMouseEvent>

namespace vantrix::view {

void TranslateTool::press(const QMouseEvent& event)
{
    const FramePlot* plot = context().activePlot();
    m_movesPaper = !plot || plot->polar; // the centre of a polar plot stays where it is
    m_last = event.position();
}

void TranslateTool::drag(const QMouseEvent& event)
{
    const QPointF by = event.position() - m_last;
    m_last = event.position();
    if (m_movesPaper) {
        context().paper.move(by);
        context().widget.update();
    } else if (const FramePlot* plot = context().activePlot()) {
        context().renderer.setMoving(true);
        context().editor.begin("Translate");
        context().editor.move(*context().frame(), *plot, by / context().paper.inch());
        context().showMove();
    }
}

} // namespace vantrix::view
