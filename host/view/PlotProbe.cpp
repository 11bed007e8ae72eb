#include "view/PlotProbe.h"

#include "kernel/ApplicationLock.h"
#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"
#include "kernel/ProbeService.h"
#include "view/FramePlot.h"
#include "view/PageRenderer.h"

#include <QPainter>
#include <QPen>

#include <algorithm>

namespace vantrix::view {

namespace {

constexpr double markArm = 8.0; /* pixels */

const LineMapStyle* lineMap(const FramePlot& plot, long number)
{
    const auto& maps = plot.style.lineMaps;
    const auto found =
        std::find_if(maps.begin(), maps.end(), [number](const LineMapStyle& map) { return map.number == number; });
    return found != maps.end() ? &*found : nullptr;
}

/* Where values of a line map are drawn, over its own axes; nothing of one that is not shown. */
std::optional<QPointF> placeOnLine(const FramePlot& plot, long map, double x, double y)
{
    const LineMapStyle* shown = lineMap(plot, map);
    return shown ? plot.placeOf(QPointF(x, y), shown->xAxis, shown->yAxis) : std::nullopt;
}

std::vector<std::optional<QPointF>> placesOf(const FramePlot& plot, const kernel::LineProbeResult& line)
{
    if (line.pickedMap != 0) {
        return {placeOnLine(plot, line.pickedMap, line.pickedX, line.pickedY)};
    }
    std::vector<std::optional<QPointF>> places;
    const bool isAlongFirst = line.axis == 'X' || line.axis == 'T';
    for (const auto& map : line.values) {
        if (map.value) {
            places.push_back(isAlongFirst ? placeOnLine(plot, map.lineMap, line.position, *map.value)
                                          : placeOnLine(plot, map.lineMap, *map.value, line.position));
        }
    }
    return places;
}

/* The first X axis that a line is shown over. */
int firstUsedXAxis(const FramePlot& plot)
{
    const auto& maps = plot.style.lineMaps;
    const auto first = std::min_element(maps.begin(), maps.end(),
                                        [](const auto& one, const auto& other) { return one.xAxis < other.xAxis; });
    return first != maps.end() ? first->xAxis : 1;
}

} // namespace

kernel::ProbeService& PlotProbe::probes() const
{
    return m_kernel.probes();
}

void PlotProbe::probe(const kernel::Frame& frame, QPointF place, bool isNearestPoint) const
{
    const FramePlot* plot = m_renderer.plot(frame.id());
    if (!plot) {
        return;
    }
    const kernel::ActionLock lock(m_kernel.lock());
    try {
        const bool isFound = perform(*plot, frame.id(), place, isNearestPoint);
        m_kernel.frontEnd().showStatus(isFound ? probes().statusLineText()
                                               : "There are no data to probe at this place.");
    } catch (const kernel::DataError& error) {
        m_kernel.frontEnd().showStatus(error.what());
    }
}

bool PlotProbe::perform(const FramePlot& plot, long frameId, QPointF place, bool isNearestPoint) const
{
    if (plot.camera) {
        const auto surface = m_renderer.pick(frameId, place);
        return surface && probes().perform(kernel::FieldPositionRequest{*surface, false, isNearestPoint});
    }
    const auto data = plot.dataAt(place);
    if (!data) {
        return false;
    }
    if (plot.style.type == PlotType_Cartesian2D) {
        return probes().perform(kernel::FieldPositionRequest{{data->x(), data->y(), 0.0}, false, isNearestPoint});
    }
    if (isNearestPoint) {
        // Nearest is what looks nearest.
        using Place = kernel::LineNearestRequest::Place;
        const auto placeOf = [&plot](long map, double x, double y) -> std::optional<Place> {
            const auto drawn = placeOnLine(plot, map, x, y);
            return drawn ? std::optional(Place{drawn->x(), drawn->y()}) : std::nullopt;
        };
        return probes().perform(kernel::LineNearestRequest{{place.x(), place.y()}, placeOf});
    }
    if (plot.polar) {
        return probes().perform(kernel::LinePositionRequest{'T', 1, data->x()});
    }
    const int axis = firstUsedXAxis(plot);
    const double position = plot.scale(0, axis)->value((place.x() - plot.area.left()) / plot.area.width());
    return probes().perform(kernel::LinePositionRequest{'X', axis, position});
}

std::vector<QPointF> PlotProbe::probedPlaces() const
{
    const kernel::Frame* frame = m_kernel.document().frameById(probes().frameId());
    const FramePlot* plot = frame ? m_renderer.plot(frame->id()) : nullptr;
    std::vector<std::optional<QPointF>> probed;
    if (plot && plot->style.type == probes().plotType()) {
        if (const kernel::FieldProbeResult* field = probes().fieldResult()) {
            probed.push_back(plot->placeOf(field->position));
        } else if (const kernel::LineProbeResult* line = probes().lineResult()) {
            probed = placesOf(*plot, *line);
        }
    }
    std::vector<QPointF> places;
    for (const auto& place : probed) {
        if (place && plot->area.contains(*place)) {
            places.push_back(m_renderer.frameRect(*frame).topLeft() + *place);
        }
    }
    return places;
}

void PlotProbe::paintMark(QPainter& painter, QPointF place)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (const QPen& pen : {QPen(Qt::white, 4.0), QPen(Qt::black, 1.5)}) {
        painter.setPen(pen);
        painter.drawLine(place - QPointF(markArm, 0.0), place + QPointF(markArm, 0.0));
        painter.drawLine(place - QPointF(0.0, markArm), place + QPointF(0.0, markArm));
        painter.drawEllipse(place, 0.5 * markArm, 0.5 * markArm);
    }
    painter.restore();
}

} // namespace vantrix::view
