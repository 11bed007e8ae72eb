#include "view/mouse/StreamtraceTool.h"

#include "api/VtxUtilBase.h"
#include "api/VtxUtilState.h"
#include "api/VtxUtilStreamtrace.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "kernel/StyleActions.h"
#include "kernel/StyleStore.h"
#include "kernel/interface/ArgumentList.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace vantrix::view {

namespace {

/* What is placed is seen: the layer, and paths where nothing of it would be drawn. */
void show(const kernel::StyleStore& style, long frame)
{
    const auto turnOn = [&](const char* path) { kernel::StyleActions::set(style.entry(path), {-1}, -1, 1L); };
    turnOn("StreamtraceLayers/Show");
    if (!style.flag(frame, style.entry("StreamAttributes/ShowPaths")) &&
        !style.flag(frame, style.entry("StreamAttributes/StreamTiming/ShowMarkers"))) {
        turnOn("StreamAttributes/ShowPaths");
    }
}

} // namespace

void StreamtraceTool::press(const QMouseEvent& event)
{
    m_isDragging = context().frame() && context().frameAt(event.position()) != 0;
    m_from = m_to = event.position();
    Q_EMIT context().widget.statusMessage({});
}

void StreamtraceTool::drag(const QMouseEvent& event)
{
    m_to = event.position();
    context().widget.update();
}

void StreamtraceTool::release(const QMouseEvent& event)
{
    m_to = event.position();
    if (std::exchange(m_isDragging, false)) {
        place();
    }
    context().widget.update();
}

bool StreamtraceTool::keyPress(const QKeyEvent& event)
{
    const bool isStopped = event.key() == Qt::Key_Escape && std::exchange(m_isDragging, false);
    context().widget.update();
    return isStopped;
}

bool StreamtraceTool::isRake() const
{
    return MouseContext::isDrag(m_to - m_from);
}

std::optional<StreamtraceTool::Place> StreamtraceTool::placeInData(QPointF place) const
{
    const kernel::Frame& frame = *context().frame();
    const FramePlot* plot = context().renderer.plot(frame.id());
    const QPointF at = context().inFrame(place);
    if (plot && plot->camera) {
        return context().renderer.pick(frame.id(), at);
    }
    const auto flat = plot ? plot->dataAt(at) : std::nullopt;
    return flat ? std::optional(std::array{flat->x(), flat->y(), 0.0}) : std::nullopt;
}

/* Whether a rake follows the surface that is seen below the drag; else it is straight in the data. */
bool StreamtraceTool::followsSurface() const
{
    const kernel::StyleStore& style = context().kernel.style();
    const long frame = context().frame()->id();
    return style.integer(frame, style.entry("PlotType")) == PlotType_Cartesian3D &&
           style.integer(frame, style.entry("FrameSetup/Default3DStreamtrace/StreamType")) == Streamtrace_SurfaceLine;
}

std::vector<StreamtraceTool::Rake> StreamtraceTool::rakes() const
{
    const auto from = placeInData(m_from);
    if (!isRake() || !followsSurface()) {
        const auto to = isRake() ? placeInData(m_to) : std::nullopt;
        return from && (to || !isRake()) ? std::vector{Rake{*from, to}} : std::vector<Rake>();
    }
    const kernel::StyleStore& style = context().kernel.style();
    const long count = style.integer(context().frame()->id(), style.entry("FrameSetup/NumStreamrakePoints"));
    std::vector<Rake> points;
    for (long i = 0; i < count; ++i) {
        const double part = count > 1 ? double(i) / double(count - 1) : 0.5;
        if (const auto point = placeInData(m_from + part * (m_to - m_from))) {
            points.push_back({*point, std::nullopt});
        }
    }
    return points;
}

void StreamtraceTool::place()
{
    const std::vector<Rake> placed = rakes();
    if (placed.empty()) {
        Q_EMIT context().widget.statusMessage(
            QObject::tr("Nothing of the data is seen at this place to put a streamtrace on."));
        return;
    }
    const kernel::ActionLock lock(context().kernel.lock());
    show(context().kernel.style(), context().frame()->id());
    for (const Rake& rake : placed) {
        VtxArgList list;
        const auto add = [&](const Place& place, const std::array<const char*, 3>& names) {
            for (std::size_t axis = 0; axis < names.size(); ++axis) {
                list.arguments.push_back({names[axis], place[axis]});
            }
        };
        add(rake.from, {"X1", "Y1", "Z1"});
        if (rake.to) {
            add(*rake.to, {"X2", "Y2", "Z2"});
        }
        if (!VtxUtilStreamtraceAddX(&list)) {
            Q_EMIT context().widget.statusMessage(QString::fromStdString(context().kernel.lastError()));
            VtxUtilLockRollBack();
            return;
        }
    }
}

void StreamtraceTool::paint(QPainter& painter) const
{
    if (m_isDragging && isRake()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(MouseContext::highlight, 1.0, Qt::DashLine));
        painter.drawLine(m_from, m_to);
    }
}

} // namespace vantrix::view
