#include "view/LinePlot.h"

#include "kernel/DataSet.h"
#include "view/HitMap.h"
#include "view/LinePattern.h"
#include "view/MarkSymbol.h"
#include "view/Polyline.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

/* Which pixels have a symbol already: more than one on the same would not be seen. */
class TakenPixels
{
public:
    TakenPixels(const QRectF& area, double pixel)
        : m_area(area)
        , m_pixel(pixel)
        , m_columns(static_cast<std::size_t>(area.width() / pixel) + 1)
        , m_isTaken(m_columns * (static_cast<std::size_t>(area.height() / pixel) + 1))
    {}

    /* Whether a place inside of the area was free. */
    bool take(QPointF place)
    {
        // Nothing of a logarithmic axis is at or below zero; a rectangle takes what is not a number for inside.
        if (!std::isfinite(place.x()) || !std::isfinite(place.y()) || !m_area.contains(place)) {
            return false;
        }
        const auto column = static_cast<std::size_t>((place.x() - m_area.left()) / m_pixel);
        const auto row = static_cast<std::size_t>((place.y() - m_area.top()) / m_pixel);
        const std::size_t index = row * m_columns + column;
        if (m_isTaken[index]) {
            return false;
        }
        m_isTaken[index] = true;
        return true;
    }

private:
    QRectF m_area;
    double m_pixel;
    std::size_t m_columns;
    std::vector<bool> m_isTaken;
};

} // namespace

QPen LinePlot::pen(const Canvas& canvas, double frameHeight, const LineMapStyle& map)
{
    const double inches = frameHeight / 100.0;
    return patternPen(canvas, map.color, map.thickness * inches, map.pattern, map.patternLength * inches);
}

void LinePlot::paint(const QRectF& area, const QPainterPath& clip,
                     const std::function<Places(const LineMapStyle&)>& placesOf) const
{
    QPainter& painter = m_canvas.painter;
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    if (!clip.isEmpty()) {
        painter.setClipPath(clip, Qt::IntersectClip);
    }
    for (const LineMapStyle& map : m_style.lineMaps) {
        paint(map, area, placesOf(map));
    }
    painter.restore();
}

void LinePlot::paint(const LineMapStyle& map, const QRectF& area, const Places& places) const
{
    const kernel::FieldArray* xField = m_dataSet.field(map.zone, map.xVariable);
    const kernel::FieldArray* yField = m_dataSet.field(map.zone, map.yVariable);
    const auto xs = xField ? xField->load() : nullptr;
    const auto ys = yField ? yField->load() : nullptr;
    if (!xs || !ys) {
        return;
    }
    // What is blanked is as if it were not in the data: the line goes on to the next point.
    const auto blanked = m_style.blanking.isActive() ? m_style.blanking.of(m_dataSet, map.zone) : nullptr;
    const auto isBlanked = [&](vtkIdType i) {
        const auto point = std::size_t(i);
        return blanked && point < blanked->points.size() && blanked->points[point] != 0;
    };
    const double pixel = 1.0 / m_canvas.resolution();
    const vtkIdType count = std::min(xs->GetNumberOfTuples(), ys->GetNumberOfTuples());
    if (map.hasLines) {
        const QPen curvePen = pen(m_canvas, m_frameHeight, map);
        const double margin = 2.0 * curvePen.widthF();
        Polyline curve(area.adjusted(-margin, -margin, margin, margin), pixel);
        for (vtkIdType i = 0; i < count; ++i) {
            if (!isBlanked(i)) {
                curve.add(places(xs->GetComponent(i, 0), ys->GetComponent(i, 0)));
            }
        }
        m_canvas.painter.setPen(curvePen);
        m_canvas.painter.setBrush(Qt::NoBrush);
        for (const QPolygonF& piece : curve.take()) {
            m_canvas.painter.drawPolyline(piece);
            m_canvas.markLine({.type = PickObject_LineMap, .number = map.number}, piece);
        }
    }
    if (map.hasSymbols) {
        const MarkSymbol symbol(m_canvas, m_frameHeight, map.symbol);
        const double margin = symbol.radius();
        const QPointF reach(margin, margin);
        TakenPixels taken(area.adjusted(-margin, -margin, margin, margin), pixel);
        for (vtkIdType i = 0; i < count; i += map.skip) {
            const QPointF place = places(xs->GetComponent(i, 0), ys->GetComponent(i, 0));
            if (!isBlanked(i) && taken.take(place)) {
                symbol.draw(place);
                m_canvas.markArea({.type = PickObject_LineMap, .number = map.number},
                                  QRectF(place - reach, place + reach));
            }
        }
    }
}

} // namespace vantrix::view
