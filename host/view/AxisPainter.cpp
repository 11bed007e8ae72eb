#include "view/AxisPainter.h"

#include "view/HitMap.h"
#include "view/LinePattern.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantrix::view {
namespace {

AxisScale scaleOf(const AxisStyle& axis)
{
    return {axis.minimum, axis.maximum, axis.isLogarithmic, axis.isReversed};
}

AxisScale widened(const AxisScale& scale, double range)
{
    const double middle = 0.5 * (scale.minimum() + scale.maximum());
    return {middle - 0.5 * range, middle + 0.5 * range, false, scale.isReversed()};
}

double range(const AxisScale& scale)
{
    return scale.maximum() - scale.minimum();
}

bool isOn(const ShownOn& ticks, const ShownOn& labels, const ShownOn& title, bool ShownOn::*where)
{
    return ticks.*where || labels.*where || title.*where;
}

} // namespace

AxisPainter::AxisPainter(const Canvas& canvas, double frameHeight, const PlotStyle& style)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_style(style)
{
    for (std::size_t kind = 0; kind < 2; ++kind) {
        m_axes.push_back({kind, 1, &style.axes[kind], scaleOf(style.axes[kind])});
    }
    for (const NumberedAxis& more : style.moreAxes) {
        m_axes.push_back({more.kind, more.number, &more.style, scaleOf(more.style)});
    }
}

const AxisScale& AxisPainter::scale(std::size_t kind, int number) const
{
    const auto found = std::find_if(m_axes.begin(), m_axes.end(),
                                    [&](const Axis& axis) { return axis.kind == kind && axis.number == number; });
    return found != m_axes.end() ? found->scale : m_axes[kind].scale;
}

/* Length of a unit of X over one of Y; 0 where each axis has its own. */
double AxisPainter::unitRatio() const
{
    const bool isAllowed = m_axes.size() == 2 && !m_axes[0].scale.isLogarithmic() && !m_axes[1].scale.isLogarithmic();
    return isAllowed ? m_style.xToYRatio : 0.0;
}

QRectF AxisPainter::layOut(const QRectF& room, const QRectF& frame)
{
    const AxisAreaStyle& style = m_style.area;
    m_viewport = QRectF(QPointF(frame.left() + std::min(style.left, style.right) * frame.width(),
                                frame.bottom() - std::max(style.bottom, style.top) * frame.height()),
                        QPointF(frame.left() + std::max(style.left, style.right) * frame.width(),
                                frame.bottom() - std::min(style.bottom, style.top) * frame.height()));
    // Which numbers there are depends on the length of the axis, and its length on the room for the numbers.
    const double edge = edgePercent / 100.0 * m_frameHeight * m_canvas.inch;
    const QRectF inside = room.adjusted(edge, edge, -edge, -edge);
    const QRectF smallest(inside.center() - QPointF(0.5, 0.5), QSizeF(1.0, 1.0));
    const QRectF most = inside.intersected(m_viewport).isValid() ? inside.intersected(m_viewport) : smallest;
    QRectF area = most;
    for (int round = 0; round < 3; ++round) {
        m_area = area;
        keepProportion(area);
        const QRectF all = bounds();
        const QMarginsF needed(m_area.left() - all.left(), m_area.top() - all.top(), all.right() - m_area.right(),
                               all.bottom() - m_area.bottom());
        area = inside.marginsRemoved(needed).intersected(most);
        if (area.width() < 1.0 || area.height() < 1.0) {
            area = smallest;
        }
    }
    m_area = area;
    keepProportion(area);
    m_area = m_canvas.aligned(m_area);
    return m_area;
}

/* Fits the area into `room`, or the ranges to the area where the lengths of axes are to be kept. */
void AxisPainter::keepProportion(const QRectF& room)
{
    const double ratio = unitRatio();
    if (ratio <= 0.0) {
        return;
    }
    const double xRange = range(scaleOf(*m_axes[0].style));
    const double yRange = range(scaleOf(*m_axes[1].style));
    const double xUnit = room.width() / xRange;
    const double yUnit = room.height() / yRange;
    if (m_style.keepsAxisLengths) {
        const bool isXWidened = xUnit > ratio * yUnit;
        const AxisScale x = scaleOf(*m_axes[0].style);
        const AxisScale y = scaleOf(*m_axes[1].style);
        m_axes[0].scale = isXWidened ? widened(x, room.width() / (ratio * yUnit)) : x;
        m_axes[1].scale = isXWidened ? y : widened(y, room.height() * ratio / xUnit);
        return;
    }
    const double unit = std::min(xUnit, ratio * yUnit);
    const QSizeF size(std::max(1.0, unit * xRange), std::max(1.0, unit / ratio * yRange));
    m_area = QRectF(room.center() - QPointF(0.5 * size.width(), 0.5 * size.height()), size);
}

/* Where an axis lies across the area: 0 at the lower or left border, 1 at the other. */
double AxisPainter::place(const Axis& axis) const
{
    const AxisLineStyle& line = axis.style->line;
    switch (line.alignment) {
    case AxisAlignment_GridMax:
    case AxisAlignment_GridAreaTop:
    case AxisAlignment_GridAreaRight:
        return 1.0;
    case AxisAlignment_OpposingAxisValue:
        return std::clamp(scale(1 - axis.kind, 1).fraction(line.opposingValue), 0.0, 1.0);
    case AxisAlignment_Viewport:
        return axis.kind == 0
                   ? (m_area.bottom() - (m_viewport.bottom() - line.position / 100.0 * m_viewport.height())) /
                         m_area.height()
                   : (m_viewport.left() + line.position / 100.0 * m_viewport.width() - m_area.left()) / m_area.width();
    default:
        return 0.0;
    }
}

AxisPath AxisPainter::path(std::size_t kind, double across, bool isOutwardUp) const
{
    if (kind == 0) {
        const double y = m_area.bottom() - across * m_area.height();
        return AxisPath::line({m_area.left(), y}, {m_area.right(), y}, {0.0, isOutwardUp ? -1.0 : 1.0});
    }
    const double x = m_area.left() + across * m_area.width();
    return AxisPath::line({x, m_area.bottom()}, {x, m_area.top()}, {isOutwardUp ? 1.0 : -1.0, 0.0});
}

std::vector<AxisPainter::Line> AxisPainter::lines() const
{
    std::vector<Line> lines;
    // How far the axes that stand at a border already reach; by kind and side.
    std::array<std::array<double, 2>, 2> taken{};
    for (const Axis& axis : m_axes) {
        const AxisStyle& style = *axis.style;
        if (!style.isShown) {
            continue;
        }
        const double at = place(axis);
        const bool isUp = at > 1.0 - 1e-6;
        const bool isAtBorder = isUp || at < 1e-6;
        double& reached = taken[axis.kind][isUp ? 1 : 0];
        const double size = axis.kind == 0 ? m_area.height() : m_area.width();
        const double unit = m_frameHeight / 100.0 * m_canvas.inch;
        const double offset = style.line.offset * unit + (isAtBorder ? reached : 0.0);
        const AxisPath own = path(axis.kind, at + (isUp ? 1.0 : -1.0) * offset / size, isUp);
        lines.push_back({&axis,
                         {m_canvas, m_frameHeight, style, axis.scale, own,
                          AxisParts::of(style, style.line.isShown, &ShownOn::axisLine)},
                         isAtBorder});
        std::vector<double> crossings;
        for (const Axis& other : m_axes) {
            if (other.kind != axis.kind && other.style->isShown) {
                crossings.push_back(place(other));
            }
        }
        lines.back().painter.clearIntersections(crossings);
        if (isAtBorder) {
            reached = offset + lines.back().painter.reach() + 1.5 * unit;
        }
        for (const auto& [where, across] :
             {std::pair(&ShownOn::gridMinimum, 0.0), std::pair(&ShownOn::gridMaximum, 1.0)}) {
            if (isOn(style.ticks.shownOn, style.labels.shownOn, style.title.shownOn, where)) {
                lines.push_back({&axis,
                                 {m_canvas, m_frameHeight, style, axis.scale, path(axis.kind, across, across > 0.5),
                                  AxisParts::of(style, false, where)},
                                 true});
            }
        }
    }
    return lines;
}

QRectF AxisPainter::bounds() const
{
    QRectF bounds = m_area;
    for (const Line& line : lines()) {
        bounds |= line.painter.bounds();
    }
    return bounds;
}

AxisTicks AxisPainter::ticks(const Axis& axis) const
{
    return AxisLinePainter::ticksAlong(m_canvas, m_frameHeight, *axis.style, axis.scale, path(axis.kind, 0.0, false));
}

void AxisPainter::paintGridLines(const Axis& axis, const GridLineStyle& grid, const std::vector<Tick>& ticks) const
{
    if (!grid.isShown) {
        return;
    }
    const double inches = m_frameHeight / 100.0;
    m_canvas.painter.setPen(
        patternPen(m_canvas, grid.color, grid.thickness * inches, grid.pattern, grid.patternLength * inches));
    for (const Tick& tick : ticks) {
        if (axis.kind == 0) {
            const double x = m_area.left() + tick.fraction * m_area.width();
            m_canvas.painter.drawLine(QPointF(x, m_area.bottom()), QPointF(x, m_area.top()));
        } else {
            const double y = m_area.bottom() - tick.fraction * m_area.height();
            m_canvas.painter.drawLine(QPointF(m_area.left(), y), QPointF(m_area.right(), y));
        }
    }
}

void AxisPainter::paintGrid(bool isLast) const
{
    for (const Axis& axis : m_axes) {
        const AxisStyle& style = *axis.style;
        const bool isMinorNow = style.minorGrid.isShown && style.minorGrid.isLast == isLast;
        const bool isMajorNow = style.grid.isShown && style.grid.isLast == isLast;
        if (!style.isShown || !(isMinorNow || isMajorNow)) {
            continue;
        }
        const AxisTicks marks = ticks(axis);
        if (isMinorNow) {
            paintGridLines(axis, style.minorGrid, marks.minor);
        }
        if (isMajorNow) {
            paintGridLines(axis, style.grid, marks.major);
        }
    }
}

void AxisPainter::paintPreciseGrid() const
{
    const AxisAreaStyle& style = m_style.area;
    if (!style.hasPreciseGrid) {
        return;
    }
    constexpr double inchesPerCentimetre = 1.0 / 2.54;
    const double size =
        std::max(style.preciseGridSize * inchesPerCentimetre * m_canvas.inch, 1.0 / m_canvas.resolution());
    const auto fractions = [](const AxisTicks& ticks) {
        std::vector<double> found;
        for (const auto* set : {&ticks.major, &ticks.minor}) {
            for (const Tick& tick : *set) {
                found.push_back(tick.fraction);
            }
        }
        return found;
    };
    const std::vector<double> across = fractions(ticks(m_axes[0]));
    for (const double up : fractions(ticks(m_axes[1]))) {
        for (const double along : across) {
            const QPointF middle(m_area.left() + along * m_area.width(), m_area.bottom() - up * m_area.height());
            m_canvas.painter.fillRect(QRectF(middle - QPointF(0.5 * size, 0.5 * size), QSizeF(size, size)),
                                      style.preciseGridColor);
        }
    }
}

void AxisPainter::paintFill() const
{
    if (m_style.area.isFilled) {
        m_canvas.painter.fillRect(m_area, m_style.area.fill);
    }
}

void AxisPainter::paintBehind() const
{
    paintFill();
    paintGrid(false);
}

void AxisPainter::paintFront() const
{
    paintGrid(true);
    paintPreciseGrid();
    const AxisAreaStyle& style = m_style.area;
    if (style.hasBorder) {
        m_canvas.painter.setPen(m_canvas.pen(style.borderColor, style.borderThickness / 100.0 * m_frameHeight));
        m_canvas.painter.setBrush(Qt::NoBrush);
        m_canvas.painter.drawRect(m_area);
    }
    const auto paintGround = [&] {
        m_canvas.painter.fillRect(m_canvas.painter.clipBoundingRect(), m_style.frame.background);
        paintFill();
    };
    m_canvas.markArea(axisObject('X', AxisSubObject_GridArea), m_area);
    for (const Line& line : lines()) {
        line.painter.mark("XY"[line.axis->kind], line.axis->number);
        line.painter.paint(line.isAtBorder ? std::function<void()>() : paintGround);
    }
}

} // namespace vantrix::view
