#include "view/FramePlot.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {

std::optional<QPointF> FramePlot::dataAt(QPointF place) const
{
    if (polar && polarRadius > 0.0 && area.contains(place)) {
        const QPointF from = (place - polarCenter) / polarRadius;
        const QPointF values = polar->valuesAt({from.x(), -from.y()});
        return std::isfinite(values.y()) ? std::optional(values) : std::nullopt;
    }
    if (!x || !y || !area.contains(place)) {
        return std::nullopt;
    }
    return QPointF(x->value((place.x() - area.left()) / area.width()),
                   y->value((area.bottom() - place.y()) / area.height()));
}

Point3 FramePlot::toWorld(const Point3& data) const
{
    const Point3 scale = style.worldScale();
    const Point3 shift = style.worldShift();
    return {data[0] * scale[0] + shift[0], data[1] * scale[1] + shift[1], data[2] * scale[2] + shift[2]};
}

std::optional<Point3> FramePlot::dataAt(QPointF place, const Point3& inPlane) const
{
    if (!camera) {
        return std::nullopt;
    }
    Point3 point = camera->unproject(onPicture(place), toWorld(inPlane));
    const Point3 scale = style.worldScale();
    const Point3 shift = style.worldShift();
    for (std::size_t i = 0; i < point.size(); ++i) {
        point[i] = (point[i] - shift[i]) / scale[i];
    }
    return point;
}

std::optional<QPointF> FramePlot::placeOf(const Point3& data) const
{
    if (camera) {
        const QPointF seen = camera->project(toWorld(data));
        return area.center() + QPointF(seen.x(), -seen.y()) * area.width();
    }
    if (polar) {
        const QPointF unit = polar->place(data[0], data[1]);
        return polarCenter + QPointF(unit.x(), -unit.y()) * polarRadius;
    }
    if (!x || !y) {
        return std::nullopt;
    }
    return inArea(x->fraction(data[0]), y->fraction(data[1]));
}

std::optional<QPointF> FramePlot::placeOf(QPointF data, int xAxis, int yAxis) const
{
    const AxisScale* xScale = scale(0, xAxis);
    const AxisScale* yScale = scale(1, yAxis);
    if (polar || !xScale || !yScale) {
        return placeOf({data.x(), data.y(), 0.0});
    }
    return inArea(xScale->fraction(data.x()), yScale->fraction(data.y()));
}

const AxisScale* FramePlot::scale(std::size_t kind, int number) const
{
    const auto more = std::find_if(moreScales.begin(), moreScales.end(),
                                   [&](const MoreScale& each) { return each.kind == kind && each.number == number; });
    if (more != moreScales.end()) {
        return &more->scale;
    }
    const std::optional<AxisScale>& first = kind == 0 ? x : y;
    return first ? &*first : nullptr;
}

QPointF FramePlot::inArea(double xFraction, double yFraction) const
{
    return {area.left() + xFraction * area.width(), area.bottom() - yFraction * area.height()};
}

QPointF FramePlot::onPicture(QPointF place) const
{
    const QPointF from = place - area.center();
    return {from.x() / area.width(), -from.y() / area.width()};
}

} // namespace vantrix::view
