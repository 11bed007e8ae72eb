#include "view/mouse/ProbeTool.h"

#include "kernel/Kernel.h"
#include "kernel/ProbeService.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QMouseEvent>

namespace vantrix::view {

ProbeTool::ProbeTool(MouseContext& shared)
    : MouseTool(shared)
    , m_probe(shared.kernel, shared.renderer)
{
    shared.kernel.probes().addListener(this, [this] { context().widget.update(); });
}

ProbeTool::~ProbeTool()
{
    context().kernel.probes().removeListener(this);
}

void ProbeTool::press(const QMouseEvent& event)
{
    const kernel::Frame* frame = context().frame();
    if (frame && context().frameAt(event.position()) != 0) {
        m_probe.probe(*frame, context().inFrame(event.position()), event.modifiers() & Qt::ControlModifier);
    }
}

void ProbeTool::paint(QPainter& painter) const
{
    for (const QPointF& place : m_probe.probedPlaces()) {
        PlotProbe::paintMark(painter, context().paper.toWidget(place));
    }
}

} // namespace vantrix::view
