#include "kernel/probe/LineProbe.h"

#include "kernel/DataError.h"
#include "kernel/StyleStore.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrix::kernel {

namespace {

/* The position, or in a polar plot the same some circles on, if it is from `low` to `high`. */
std::optional<double> positionBetween(double low, double high, double position, double period)
{
    if (period > 0.0) {
        position += std::ceil((low - position) / period) * period;
    }
    return low <= position && position <= high ? std::optional(position) : std::nullopt;
}

/* `period` is that of the values along the line, 0 for none. */
template<class IsBlanked>
std::optional<double> interpolated(vtkDataArray& along, vtkDataArray& values, double position, double period,
                                   const IsBlanked& isBlanked)
{
    const vtkIdType count = std::min(along.GetNumberOfTuples(), values.GetNumberOfTuples());
    const auto leftFrom = [&](vtkIdType point) {
        while (point < count && isBlanked(static_cast<long>(point))) {
            ++point;
        }
        return point;
    };
    for (vtkIdType i = leftFrom(0), after = 0; i < count; i = after) {
        after = leftFrom(i + 1);
        const double here = along.GetComponent(i, 0);
        const double next = after < count ? along.GetComponent(after, 0) : here;
        const auto met = positionBetween(std::min(here, next), std::max(here, next), position, period);
        if (!met || (*met == next && next != here)) {
            continue; // the next point is met by itself
        }
        const double value = values.GetComponent(i, 0);
        return *met == here ? value : value + (*met - here) / (next - here) * (values.GetComponent(after, 0) - value);
    }
    return std::nullopt;
}

} // namespace

bool LineProbe::Map::isBlanked(long point) const
{
    const auto at = static_cast<std::size_t>(point);
    return blanked && at < blanked->points.size() && blanked->points[at] != 0;
}

LineProbe::LineProbe(StyleStore& style, const Frame& frame)
    : m_lineMaps(style, frame)
    , m_dataSet(frame.dataSet())
    , m_blanking(ValueBlanking::read(style, frame))
{
    const long plotType = style.integer(frame.id(), style.entry("PlotType"));
    m_isPolar = plotType == PlotType_PolarLine;
    m_thetaPeriod = m_isPolar ? style.real(frame.id(), style.entry("PolarAxis/ThetaPeriod")) : 0.0;
    if (!m_isPolar && plotType != PlotType_XYLine) {
        throw DataError("Line maps can be probed in an XY or polar line plot; the active frame has another.");
    }
    if (!m_dataSet || m_dataSet->zoneCount() == 0) {
        throw DataError("The active frame has no data to probe.");
    }
}

LineProbe::Map LineProbe::map(long number) const
{
    const LineMapAssignment assignment = m_lineMaps.assignment(number);
    Map result;
    result.number = number;
    result.zone = assignment.zone;
    result.xAxis = m_isPolar ? 1 : assignment.xAxis;
    result.yAxis = m_isPolar ? 1 : assignment.yAxis;
    const FieldArray* x = m_dataSet->field(assignment.zone, assignment.xVariable);
    const FieldArray* y = m_dataSet->field(assignment.zone, assignment.yVariable);
    if (x && y && x->isLoaded() && y->isLoaded() && x->location == y->location) {
        result.x = x;
        result.y = y;
        result.blanked = m_blanking.of(*m_dataSet, assignment.zone);
    }
    return result;
}

std::vector<LineProbe::Map> LineProbe::shownMaps() const
{
    std::vector<Map> maps;
    for (const long number : m_lineMaps.active()) {
        const Map found = map(number);
        if (m_dataSet->zone(found.zone) && m_dataSet->zoneEnabled[static_cast<std::size_t>(found.zone - 1)]) {
            maps.push_back(found);
        }
    }
    return maps;
}

std::optional<LineProbeResult> LineProbe::probe(const LinePositionRequest& request) const
{
    const std::string axes = m_isPolar ? "TR" : "XY";
    const int lastAxis = m_isPolar ? 1 : 5;
    if (axes.find(request.axis) == std::string::npos || request.axisNumber < 1 || request.axisNumber > lastAxis) {
        throw DataError(std::string("The plot has no axis ") + request.axis + std::to_string(request.axisNumber) +
                        (m_isPolar ? "; it has T and R." : "; it has X1 to X5 and Y1 to Y5."));
    }
    const bool isAlongX = request.axis == axes[0];
    LineProbeResult result;
    result.axis = request.axis;
    result.axisNumber = request.axisNumber;
    result.position = request.position;
    bool hasValue = false;
    for (const Map& shown : shownMaps()) {
        if ((isAlongX ? shown.xAxis : shown.yAxis) != request.axisNumber) {
            continue;
        }
        LineProbeResult::MapValue value{shown.number, std::nullopt};
        if (shown.x) {
            vtkDataArray& along = isAlongX ? *shown.x->values : *shown.y->values;
            vtkDataArray& across = isAlongX ? *shown.y->values : *shown.x->values;
            value.value = interpolated(along, across, request.position, isAlongX ? m_thetaPeriod : 0.0,
                                       [&shown](long point) { return shown.isBlanked(point); });
        }
        hasValue = hasValue || value.value;
        result.values.push_back(value);
    }
    return hasValue ? std::optional(result) : std::nullopt;
}

LineProbeResult LineProbe::resultOf(const Map& from, long point) const
{
    LineProbeResult result;
    result.axis = m_isPolar ? 'T' : 'X';
    result.axisNumber = static_cast<int>(from.xAxis);
    result.pickedMap = from.number;
    result.point = point + 1;
    const Zone& zone = *m_dataSet->zone(from.zone);
    const auto [iMax, jMax, kMax] = zone.isOrdered() ? zone.dimensions() : std::array<long, 3>{zone.pointCount(), 1, 1};
    result.picked = {point % iMax + 1, point / iMax % jMax + 1, point / iMax / jMax + 1, from.number,
                     m_lineMaps.identity(from.number)};
    result.pickedX = from.x->values->GetComponent(point, 0);
    result.pickedY = from.y->values->GetComponent(point, 0);
    result.position = result.pickedX;
    result.values.push_back({from.number, result.pickedY});
    return result;
}

long LineProbe::lineMapOf(const LineIndexRequest& request) const
{
    if (request.identity == 0) {
        return request.lineMap;
    }
    const long number = m_lineMaps.numberOf(request.identity);
    if (number == 0) {
        throw DataError("The line map that was probed, then number " + std::to_string(request.lineMap) +
                        ", is no longer in the plot.");
    }
    return number;
}

LineProbeResult LineProbe::probe(const LineIndexRequest& request) const
{
    const long number = lineMapOf(request);
    if (!m_lineMaps.has(number)) {
        throw DataError("There is no line map " + std::to_string(number) + "; the plot has " +
                        std::to_string(m_lineMaps.count()) + ".");
    }
    const Map probed = map(number);
    const Zone* zone = m_dataSet->zone(probed.zone);
    if (!zone || !probed.x) {
        throw DataError("Line map " + std::to_string(number) + " has no values to probe.");
    }
    const auto [iMax, jMax, kMax] = zone->dimensions();
    const std::array<long, 3> last{iMax, zone->isOrdered() ? jMax : 1, zone->isOrdered() ? kMax : 1};
    const std::array<long, 3> index{request.i, request.j, request.k};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (index[axis] < 1 || index[axis] > last[axis]) {
            throw DataError(std::string(1, "IJK"[axis]) + " is " + std::to_string(index[axis]) +
                            "; it must be from 1 to " + std::to_string(last[axis]) + ".");
        }
    }
    const long point = request.i - 1 + last[0] * (request.j - 1 + last[1] * (request.k - 1));
    if (point >= probed.x->values->GetNumberOfTuples()) {
        throw DataError("Line map " + std::to_string(number) + " has no value at that index.");
    }
    return resultOf(probed, point);
}

std::optional<LineProbeResult> LineProbe::probe(const LineNearestRequest& request) const
{
    double smallest = std::numeric_limits<double>::infinity();
    std::optional<Map> nearest;
    long nearestPoint = 0;
    for (const Map& shown : shownMaps()) {
        if (!shown.x) {
            continue;
        }
        for (long point = 0; point < shown.x->values->GetNumberOfTuples(); ++point) {
            if (shown.isBlanked(point)) {
                continue;
            }
            const auto drawn = request.placeOf(shown.number, shown.x->values->GetComponent(point, 0),
                                               shown.y->values->GetComponent(point, 0));
            const double distance = drawn ? std::hypot((*drawn)[0] - request.place[0], (*drawn)[1] - request.place[1])
                                          : std::numeric_limits<double>::quiet_NaN();
            if (distance < smallest) {
                smallest = distance;
                nearest = shown;
                nearestPoint = point;
            }
        }
    }
    return nearest ? std::optional(resultOf(*nearest, nearestPoint)) : std::nullopt;
}

} // namespace vantrix::kernel
