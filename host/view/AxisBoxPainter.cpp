#include "view/AxisBoxPainter.h"

#include "view/HitMap.h"
#include "view/LinePattern.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr double shortestEdge = 8.0; /* per cent of the frame's height; a shorter one cannot be read */

double length(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

AxisScale paddedScale(const PlotStyle& style, std::size_t axis)
{
    const AxisScale range(style.axes[axis].minimum, style.axes[axis].maximum);
    const double padding = style.boxPadding * (range.maximum() - range.minimum());
    return {range.minimum() - padding, range.maximum() + padding, false, style.axes[axis].isReversed};
}

} // namespace

Box3 AxisBoxPainter::box(const PlotStyle& style)
{
    Box3 box;
    for (std::size_t i = 0; i < 3; ++i) {
        const AxisScale scale = paddedScale(style, i);
        box.minimum[i] = scale.minimum() * style.axisScale[i];
        box.maximum[i] = scale.maximum() * style.axisScale[i];
    }
    return box;
}

AxisBoxPainter::AxisBoxPainter(const Canvas& canvas, double frameHeight, const PlotStyle& style, const Camera3D& camera,
                               const QRectF& picture)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_style(style)
    , m_camera(camera)
    , m_picture(picture)
    , m_box(box(style))
    , m_scales{paddedScale(style, 0), paddedScale(style, 1), paddedScale(style, 2)}
{}

QPointF AxisBoxPainter::place(const Point3& world) const
{
    const QPointF point = m_camera.project(world);
    return m_picture.center() + QPointF(point.x(), -point.y()) * m_picture.width();
}

bool AxisBoxPainter::isFacing(std::size_t axis, bool atMaximum) const
{
    const double component = m_camera.toward()[axis];
    return atMaximum ? component > 1e-9 : component < -1e-9;
}

/* The edge along an axis from one of the corners at its minimum. */
AxisBoxPainter::Edge AxisBoxPainter::edgeAt(std::size_t axis, int corner) const
{
    const QPointF from = place(m_box.corner(corner));
    const QPointF to = place(m_box.corner(corner | (1 << axis)));
    const QPointF along = to - from;
    if (length(along) < shortestEdge / 100.0 * m_frameHeight * m_canvas.inch) {
        return {};
    }
    QPointF outward = QPointF(-along.y(), along.x()) / length(along);
    if (QPointF::dotProduct(outward, 0.5 * (from + to) - place(m_box.center())) < 0.0) {
        outward = -outward;
    }
    return {from, to, outward, corner, true};
}

AxisBoxPainter::Edge AxisBoxPainter::edge(std::size_t axis) const
{
    const std::size_t first = (axis + 1) % 3;
    const std::size_t second = (axis + 2) % 3;
    if (const int wanted = m_style.axes[axis].line.edge; wanted > 0) {
        // Counted around the axis: both others at their minimum, the first at its maximum, both, the second.
        const bool atFirst = (wanted == 2 || wanted == 3) != m_style.axes[first].isReversed;
        const bool atSecond = (wanted == 3 || wanted == 4) != m_style.axes[second].isReversed;
        return edgeAt(axis, (atFirst ? 1 << first : 0) | (atSecond ? 1 << second : 0));
    }
    Edge best;
    double bestRank = 0.0;
    for (int number = 0; number < 8; ++number) {
        const bool atFirst = number & (1 << first);
        const bool atSecond = number & (1 << second);
        if ((number & (1 << axis)) || isFacing(first, atFirst) == isFacing(second, atSecond)) {
            continue;
        }
        const Edge one = edgeAt(axis, number);
        // X and Y belong at the bottom of the picture, Z at its left.
        const double rank = axis == 2 ? -0.5 * (one.from.x() + one.to.x()) : 0.5 * (one.from.y() + one.to.y());
        if (one.isUsable && (!best.isUsable || rank > bestRank)) {
            best = one;
            bestRank = rank;
        }
    }
    return best;
}

int AxisBoxPainter::oppositeCorner(std::size_t axis, int corner) const
{
    return corner ^ (1 << ((axis + 1) % 3)) ^ (1 << ((axis + 2) % 3));
}

AxisPath AxisBoxPainter::path(std::size_t axis, const Edge& edge) const
{
    // Through the camera: perspective makes equal steps unequal in the picture.
    const auto along = [this, axis, edge](double fraction) {
        Point3 world = m_box.corner(edge.corner);
        world[axis] = std::lerp(m_box.minimum[axis], m_box.maximum[axis], fraction);
        const QPointF whole = edge.to - edge.from;
        return QPointF::dotProduct(place(world) - edge.from, whole) / QPointF::dotProduct(whole, whole);
    };
    const QPointF offset = edge.outward * (m_style.axes[axis].line.offset / 100.0 * m_frameHeight * m_canvas.inch);
    return AxisPath::line(edge.from + offset, edge.to + offset, edge.outward, along);
}

std::vector<AxisLinePainter> AxisBoxPainter::lines() const
{
    std::vector<AxisLinePainter> lines;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const AxisStyle& style = m_style.axes[axis];
        const Edge carrier = edge(axis);
        if (!style.isShown || !carrier.isUsable) {
            continue;
        }
        lines.emplace_back(m_canvas, m_frameHeight, style, m_scales[axis], path(axis, carrier),
                           AxisParts::of(style, style.line.isShown, &ShownOn::axisLine));
        // Where axes meet, each one's first or last number would lie near the other's.
        lines.back().clearIntersections({0.0, 1.0});
        const AxisParts parts = AxisParts::of(style, style.line.hasOppositeEdge, &ShownOn::oppositeEdge);
        const Edge opposite = edgeAt(axis, oppositeCorner(axis, carrier.corner));
        if (opposite.isUsable && (parts.hasLine || parts.hasTicks || parts.hasLabels || parts.hasTitle)) {
            lines.emplace_back(m_canvas, m_frameHeight, style, m_scales[axis], path(axis, opposite), parts);
        }
    }
    return lines;
}

QRectF AxisBoxPainter::bounds() const
{
    QRectF bounds;
    for (const AxisLinePainter& line : lines()) {
        bounds |= line.bounds();
    }
    return bounds;
}

std::vector<AxisBoxPainter::Side> AxisBoxPainter::farSides() const
{
    std::vector<Side> sides;
    for (std::size_t normal = 0; normal < 3; ++normal) {
        const bool atMaximum = isFacing(normal, false);
        if (atMaximum || isFacing(normal, true)) { // else it is seen edge on
            sides.push_back({normal, atMaximum ? m_box.maximum[normal] : m_box.minimum[normal], (normal + 1) % 3,
                             (normal + 2) % 3});
        }
    }
    return sides;
}

QColor AxisBoxPainter::fill(const Side& side) const
{
    if (!m_style.area.usesLight) {
        return m_style.area.fill;
    }
    // The light comes from beside the eye: the more a side is turned to the eye, the brighter it is.
    const double facing = std::abs(m_camera.toward()[side.normal]);
    const double brightness = std::clamp(m_style.light.background + m_style.light.intensity * facing, 0.2, 1.0);
    const QColor& color = m_style.area.fill;
    return QColor::fromRgbF(float(color.redF() * brightness), float(color.greenF() * brightness),
                            float(color.blueF() * brightness));
}

void AxisBoxPainter::paintGrid(const Side& side, bool isLast) const
{
    const double inches = m_frameHeight / 100.0;
    for (const auto& [axis, across] : {std::pair(side.first, side.second), std::pair(side.second, side.first)}) {
        const AxisStyle& style = m_style.axes[axis];
        const Edge carrier = edge(axis);
        if (!style.isShown || !carrier.isUsable) {
            continue;
        }
        AxisTicks ticks;
        for (const bool isMinor : {true, false}) {
            const GridLineStyle& grid = isMinor ? style.minorGrid : style.grid;
            if (!grid.isShown || grid.isLast != isLast) {
                continue;
            }
            if (ticks.major.empty()) {
                ticks =
                    AxisLinePainter::ticksAlong(m_canvas, m_frameHeight, style, m_scales[axis], path(axis, carrier));
            }
            m_canvas.painter.setPen(
                patternPen(m_canvas, grid.color, grid.thickness * inches, grid.pattern, grid.patternLength * inches));
            for (const Tick& tick : isMinor ? ticks.minor : ticks.major) {
                Point3 from{};
                from[side.normal] = side.place;
                from[axis] = std::lerp(m_box.minimum[axis], m_box.maximum[axis], tick.fraction);
                Point3 to = from;
                from[across] = m_box.minimum[across];
                to[across] = m_box.maximum[across];
                m_canvas.painter.drawLine(place(from), place(to));
            }
        }
    }
}

void AxisBoxPainter::paintBack() const
{
    QPainter& painter = m_canvas.painter;
    for (const Side& side : farSides()) {
        const AxisStyle& first = m_style.axes[side.first];
        if (!first.isShown && !m_style.axes[side.second].isShown) {
            continue;
        }
        const auto point = [&](double a, double b) {
            Point3 world{};
            world[side.normal] = side.place;
            world[side.first] = a;
            world[side.second] = b;
            return place(world);
        };
        const Point3& low = m_box.minimum;
        const Point3& high = m_box.maximum;
        const std::array<QPointF, 4> corners{
            point(low[side.first], low[side.second]), point(high[side.first], low[side.second]),
            point(high[side.first], high[side.second]), point(low[side.first], high[side.second])};
        painter.setBrush(m_style.area.isFilled ? QBrush(fill(side)) : QBrush(Qt::NoBrush));
        painter.setPen(m_style.area.hasBorder
                           ? m_canvas.pen(first.grid.color, m_style.area.borderThickness / 100.0 * m_frameHeight)
                           : QPen(Qt::NoPen));
        painter.drawPolygon(corners.data(), 4);
        m_canvas.markArea(axisObject("XYZ"[side.first], AxisSubObject_GridArea),
                          QPolygonF(corners.begin(), corners.end()));
        paintGrid(side, false);
    }
}

void AxisBoxPainter::paintAxes() const
{
    for (const Side& side : farSides()) {
        paintGrid(side, true);
    }
    for (AxisLinePainter& line : lines()) {
        line.keepTitleInside(m_picture);
        line.mark("XYZ"[&line.style() - m_style.axes.data()]);
        line.paint();
    }
    if (m_style.tripod.isShown) {
        paintTripod();
    }
}

void AxisBoxPainter::paintTripod() const
{
    const TripodStyle& style = m_style.tripod;
    const double size = style.size / 100.0 * m_frameHeight * m_canvas.inch;
    const double text = 0.28 * style.size / 100.0 * m_frameHeight;
    // As far from the borders as the axes and their names reach when they turn.
    const double reach = size + 1.5 * text * m_canvas.inch;
    const auto inside = [reach](double wanted, double from, double to) {
        return from + reach < to - reach ? std::clamp(wanted, from + reach, to - reach) : 0.5 * (from + to);
    };
    const QPointF origin(
        inside(m_picture.left() + style.position.x() * m_picture.width(), m_picture.left(), m_picture.right()),
        inside(m_picture.bottom() - style.position.y() * m_picture.height(), m_picture.top(), m_picture.bottom()));
    const QFont font = m_canvas.font(text);
    m_canvas.painter.setPen(m_canvas.pen(style.color, 0.15 / 100.0 * m_frameHeight));
    constexpr std::array<const char*, 3> names{"X", "Y", "Z"};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double sense = m_style.axes[axis].isReversed ? -1.0 : 1.0;
        const QPointF seen(sense * m_camera.right()[axis], -sense * m_camera.up()[axis]);
        const QPointF tip = origin + seen * size;
        m_canvas.painter.drawLine(origin, tip);
        if (length(seen) > 0.15) {
            m_canvas.drawText(tip + seen / length(seen) * (0.7 * text * m_canvas.inch), Qt::AlignCenter,
                              QString::fromLatin1(names[axis]), font, style.color);
        }
    }
}

} // namespace vantrix::view
