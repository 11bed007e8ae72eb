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

namespace vantrix::view {

namespace {

constexpr double markArm = 8.0; /* pixels */

std::vector<Point3> placesOf(const kernel::LineProbeResult& line)
{
    std::vector<Point3> places;
    if (line.pickedMap != 0) {
        places.push_back({line.pickedX, line.pickedY, 0.0});
        return places;
    }
    const bool isAlongFirst = line.axis == 'X' || line.axis == 'T';
    for (const auto& map : line.values) {
        if (map.value && isAlongFirst) {
            places.push_back({line.position, *map.value, 0.0});
        } else if (map.value) {
            places.push_back({*map.value, line.position, 0.0});
        }
    }
    return places;
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
        const auto placeOf = [&plot](double x, double y) -> std::optional<Place> {
            const auto drawn = plot.placeOf({x, y, 0.0});
            return drawn ? std::optional(Place{drawn->x(), drawn->y()}) : std::nullopt;
        };
        return probes().perform(kernel::LineNearestRequest{{place.x(), place.y()}, placeOf});
    }
    const char axis = plot.style.type == PlotType_PolarLine ? 'T' : 'X';
    return probes().perform(kernel::LinePositionRequest{axis, 1, data->x()});
}

std::vector<QPointF> PlotProbe::probedPlaces() const
{
    const kernel::Frame* frame = m_kernel.document().frameById(probes().frameId());
    const FramePlot* plot = frame ? m_renderer.plot(frame->id()) : nullptr;
    std::vector<Point3> probed;
    if (plot && plot->style.type == probes().plotType()) {
        if (const kernel::FieldProbeResult* field = probes().fieldResult()) {
            probed.push_back(field->position);
        } else if (const kernel::LineProbeResult* line = probes().lineResult()) {
            if (line->axisNumber == 1) { // the plot is measured by its first axes
                probed = placesOf(*line);
            }
        }
    }
    std::vector<QPointF> places;
    for (const Point3& point : probed) {
        const auto place = plot->placeOf(point);
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
