#include "view/HitMap.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrix::view {

namespace {

double distance(QPointF place, QPointF from, QPointF to)
{
    const QPointF along = to - from;
    const double length = QPointF::dotProduct(along, along);
    const double part = length > 0.0 ? std::clamp(QPointF::dotProduct(place - from, along) / length, 0.0, 1.0) : 0.0;
    return QLineF(place, from + part * along).length();
}

double distance(QPointF place, const QPolygonF& line)
{
    double nearest = line.size() == 1 ? QLineF(place, line.first()).length() : std::numeric_limits<double>::max();
    for (qsizetype i = 1; i < line.size(); ++i) {
        nearest = std::min(nearest, distance(place, line[i - 1], line[i]));
    }
    return nearest;
}

} // namespace

int pickOrder(const kernel::PickedObject& object)
{
    switch (object.type) {
    case PickObject_Text:
    case PickObject_Geometry:
        return 0;
    case PickObject_Axis:
        return object.part == AxisSubObject_Title ? 1 : object.part == AxisSubObject_AxisLine ? 2 : 6;
    case PickObject_ContourLegend:
    case PickObject_LineLegend:
        return 3;
    case PickObject_Frame:
        return 7;
    case PickObject_Streamtrace:
        return 4;
    default:
        return 5;
    }
}

void HitMap::begin(const QTransform& toInches)
{
    m_toInches = toInches;
    m_shapes.clear();
    m_tickSpacings.clear();
}

void HitMap::addTicks(char axis, int axisNumber, double spacing)
{
    m_tickSpacings.try_emplace({axis, axisNumber}, spacing);
}

double HitMap::tickSpacing(char axis, int axisNumber) const
{
    const auto found = m_tickSpacings.find({axis, axisNumber});
    return found != m_tickSpacings.end() ? found->second : 0.0;
}

void HitMap::addArea(const kernel::PickedObject& object, const QPolygonF& outline)
{
    add(object, outline, true);
}

void HitMap::addLine(const kernel::PickedObject& object, const QPolygonF& line)
{
    add(object, line, false);
}

void HitMap::add(const kernel::PickedObject& object, const QPolygonF& outline, bool isArea)
{
    if (outline.isEmpty()) {
        return;
    }
    m_shapes.push_back({object, m_toInches.map(outline), isArea});
}

std::optional<kernel::PickedObject> HitMap::at(QPointF place, double reach) const
{
    const Shape* found = nullptr;
    for (const Shape& shape : m_shapes) {
        const bool isHit = shape.isArea ? shape.outline.containsPoint(place, Qt::OddEvenFill)
                                        : distance(place, shape.outline) <= reach;
        // What was painted later lies on top.
        if (isHit && (!found || pickOrder(shape.object) <= pickOrder(found->object))) {
            found = &shape;
        }
    }
    return found ? std::optional(found->object) : std::nullopt;
}

QPolygonF HitMap::handles(const kernel::PickedObject& object) const
{
    constexpr qsizetype mostOfLine = 8;
    QPolygonF corners;
    QPolygonF alongLines;
    int areaCount = 0;
    for (const Shape& shape : m_shapes) {
        if (shape.object != object) {
            continue;
        }
        if (shape.isArea) {
            ++areaCount;
            corners << shape.outline.mid(0, shape.outline.isClosed() ? shape.outline.size() - 1 : -1);
            continue;
        }
        const qsizetype last = shape.outline.size() - 1;
        const qsizetype count = std::min(last + 1, mostOfLine);
        for (qsizetype i = 0; i < count; ++i) {
            alongLines << shape.outline[count == 1 ? 0 : i * last / (count - 1)];
        }
    }
    // The numbers of an axis belong to it, and would be buried below the corners of each.
    if (areaCount > 1) {
        const QRectF box = corners.boundingRect();
        corners = QPolygonF{box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
    }
    return alongLines.isEmpty() ? corners : alongLines;
}

} // namespace vantrix::view
