#include "view/GeometryShape.h"

#include "view/BoxHandles.h"
#include "view/ObjectPlace.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace vantrix::view {

using kernel::Geometry;

namespace {

constexpr double leastSize = 0.02; /* inches that a handle leaves of a geometry */

} // namespace

GeometryShape::GeometryShape(const FramePlot& plot, QSizeF frame, const Geometry& geometry)
    : m_plot(plot)
    , m_frame(frame)
    , m_geometry(geometry)
{}

bool GeometryShape::isRound() const
{
    return m_geometry.type == GeomType_Circle || m_geometry.type == GeomType_Ellipse;
}

std::optional<QPointF> GeometryShape::place(double x, double y, double z) const
{
    return objectPlace(m_plot, m_frame, m_geometry.coordSys, {m_geometry.x + x, m_geometry.y + y, m_geometry.z + z});
}

std::optional<QPointF> GeometryShape::position(QPointF place) const
{
    return objectPosition(m_plot, m_frame, m_geometry.coordSys, place);
}

std::vector<GeometryShape::LinePoint> GeometryShape::linePoints() const
{
    std::vector<LinePoint> found;
    const kernel::GeometryLines lines = kernel::parseGeometryPoints(m_geometry.points);
    for (std::size_t line = 0; line < lines.size(); ++line) {
        for (std::size_t point = 0; point < lines[line].size(); ++point) {
            const auto& [x, y, z] = lines[line][point];
            if (const auto at = place(x, y, z)) {
                found.push_back({line, point, *at});
            }
        }
    }
    return found;
}

std::optional<QRectF> GeometryShape::box() const
{
    const double before = isRound() ? -0.5 : 0.0; /* of the size: the part left of and below the place */
    const double height = isSquare() ? 0.0 : m_geometry.height;
    const auto from = place(before * m_geometry.width, before * height);
    const auto to = place((1.0 + before) * m_geometry.width, (1.0 + before) * height);
    if (!from || !to) {
        return std::nullopt;
    }
    QRectF found = QRectF(*from, *to).normalized();
    if (isSquare()) {
        const double middle = found.center().y();
        found.setTop(isRound() ? middle - 0.5 * found.width() : middle - found.width());
        found.setHeight(found.width());
    }
    return found;
}

std::vector<QPolygonF> GeometryShape::outlines() const
{
    std::vector<QPolygonF> found;
    if (m_geometry.type == GeomType_Line) {
        for (const LinePoint& point : linePoints()) {
            found.resize(point.line + 1);
            found.back() << point.place;
        }
        std::erase_if(found, [](const QPolygonF& line) { return line.size() < 2; });
    } else if (const auto area = box()) {
        QPainterPath path;
        if (isRound()) {
            path.addEllipse(*area);
        } else {
            path.addRect(*area);
        }
        // Curves are split into lines as fine as one unit, which is not fine enough in inches.
        constexpr double fine = 1000.0;
        const QTransform finer = QTransform::fromScale(fine, fine);
        found.push_back(finer.inverted().map(path.toFillPolygon(finer)));
    }
    return found;
}

QPolygonF GeometryShape::handles() const
{
    QPolygonF places;
    if (m_geometry.type == GeomType_Line) {
        for (const LinePoint& point : linePoints()) {
            places << point.place;
        }
    } else if (const auto area = box()) {
        const QPolygonF all = boxHandles(*area);
        for (int handle = 0; boxHandle(handle) < int(all.size()); ++handle) {
            places << all[boxHandle(handle)];
        }
    }
    return places;
}

/* The corners of a box have every other number. */
int GeometryShape::boxHandle(int handle) const
{
    return isSquare() ? 2 * handle : handle;
}

Qt::CursorShape GeometryShape::handleCursor(int handle) const
{
    return m_geometry.type == GeomType_Line ? Qt::SizeAllCursor : boxHandleCursor(boxHandle(handle));
}

std::optional<Geometry> GeometryShape::withHandleAt(int handle, QPointF place) const
{
    if (m_geometry.type == GeomType_Line) {
        return withPointAt(static_cast<std::size_t>(handle), place);
    }
    const auto old = box();
    // What is drawn between two angles and radii is no box of theirs.
    if (!old || (m_plot.polar && m_geometry.coordSys != CoordSys_Frame)) {
        return std::nullopt;
    }
    QRectF resized = resizedBox(*old, boxHandle(handle), place, leastSize);
    if (isSquare()) {
        const double side = std::max(resized.width(), resized.height());
        const bool isOnRight = handle == 1 || handle == 2; // handles go round clockwise
        const bool isBelow = handle == 2 || handle == 3;
        resized = QRectF(isOnRight ? old->left() : old->right() - side, isBelow ? old->top() : old->bottom() - side,
                         side, side);
    }
    return withBox(resized);
}

std::optional<Geometry> GeometryShape::withPointAt(std::size_t handle, QPointF place) const
{
    const LinePoint taken = linePoints().at(handle);
    const auto at = position(place);
    if (!at) {
        return std::nullopt;
    }
    kernel::GeometryLines lines = kernel::parseGeometryPoints(m_geometry.points);
    kernel::GeometryPoint& point = lines[taken.line][taken.point];
    point[0] = at->x() - m_geometry.x;
    point[1] = at->y() - m_geometry.y;
    Geometry changed = m_geometry;
    changed.points = kernel::geometryPointsText(lines);
    return changed;
}

std::optional<Geometry> GeometryShape::withBox(const QRectF& box) const
{
    const auto one = position(box.bottomLeft());
    const auto other = position(box.topRight());
    if (!one || !other) {
        return std::nullopt;
    }
    const QRectF area = QRectF(*one, *other).normalized();
    Geometry changed = m_geometry;
    changed.width = area.width();
    changed.x = isRound() ? area.center().x() : area.left();
    changed.y = isRound() ? area.center().y() : area.top();
    if (!isSquare()) {
        changed.height = area.height();
    } else if (const auto middle = position(isRound() ? box.center() : box.bottomLeft())) {
        changed.y = middle->y(); // the height is that on the paper, whatever the Y axis is
    }
    return changed;
}

} // namespace vantrix::view
