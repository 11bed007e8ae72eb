#include "view/PolarAxisPainter.h"

#include "view/Angles.h"
#include "view/HitMap.h"
#include "view/LinePattern.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantrix::view {
namespace {

void withoutLast(std::vector<Tick>& ticks)
{
    std::erase_if(ticks, [](const Tick& tick) { return tick.fraction > 1.0 - 1e-9; });
}

} // namespace

PolarAxisPainter::PolarAxisPainter(const Canvas& canvas, double frameHeight, const PlotStyle& style)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_style(style)
    , m_scale(style)
{}

QPointF PolarAxisPainter::onCircle(double angle, double radius) const
{
    return onPaper({radius * std::cos(angle), radius * std::sin(angle)});
}

QPainterPath PolarAxisPainter::sector(double inner, double outer, double from, double to) const
{
    const auto box = [&](double radius) {
        return QRectF(m_center - QPointF(radius, radius) * m_radius, QSizeF(2.0, 2.0) * (radius * m_radius));
    };
    QPainterPath path;
    if (std::abs(to - from) > turn * (1.0 - 1e-9)) {
        path.addEllipse(box(outer));
        if (inner > 0.0) {
            path.addEllipse(box(inner));
        }
        return path;
    }
    const double start = from / turn * 360.0;
    const double span = (to - from) / turn * 360.0;
    path.arcMoveTo(box(outer), start);
    path.arcTo(box(outer), start, span);
    if (inner > 0.0) {
        path.arcTo(box(inner), start + span, -span);
    } else {
        path.lineTo(m_center);
    }
    path.closeSubpath();
    return path;
}

QPainterPath PolarAxisPainter::wholeSector() const
{
    return sector(m_scale.innerRadius(), 1.0, m_scale.firstAngle(), m_scale.lastAngle());
}

QPainterPath PolarAxisPainter::clip() const
{
    const bool clipsTheta = m_style.axes[0].clipsData;
    const bool clipsR = m_style.axes[1].clipsData;
    if (!clipsTheta && !clipsR) {
        return {};
    }
    constexpr double farAway = 20.0;
    const double from = clipsTheta ? m_scale.firstAngle() : 0.0;
    const double to = clipsTheta ? m_scale.lastAngle() : turn;
    return sector(clipsR ? m_scale.innerRadius() : 0.0, clipsR ? 1.0 : farAway, from, to);
}

void PolarAxisPainter::fit(const QRectF& area)
{
    const QRectF box = m_scale.bounds();
    m_radius = std::max(1.0, std::min(area.width() / box.width(), area.height() / box.height()));
    const QPointF middle = box.center();
    m_center = area.center() - QPointF(middle.x(), -middle.y()) * m_radius;
}

QRectF PolarAxisPainter::sectorBox() const
{
    const QRectF box = m_scale.bounds();
    return {onPaper({box.left(), box.top() + box.height()}), onPaper({box.right(), box.top()})};
}

QRectF PolarAxisPainter::layOut(const QRectF& room, const QRectF& frame)
{
    const AxisAreaStyle& style = m_style.area;
    m_viewport =
        QRectF(QPointF(frame.left() + style.left * frame.width(), frame.bottom() - style.top * frame.height()),
               QPointF(frame.left() + style.right * frame.width(), frame.bottom() - style.bottom * frame.height()))
            .normalized()
            .intersected(room);
    const double edge = offsetUnits(edgePercent);
    const QRectF inside = room.adjusted(edge, edge, -edge, -edge);
    const QRectF most = inside.intersected(m_viewport);
    QRectF area = most;
    for (int round = 0; round < 3 && area.width() > 1.0 && area.height() > 1.0; ++round) {
        fit(area);
        const QRectF all = bounds();
        const QRectF box = sectorBox();
        const QMarginsF needed(box.left() - all.left(), box.top() - all.top(), all.right() - box.right(),
                               all.bottom() - box.bottom());
        area = inside.marginsRemoved(needed).intersected(most);
    }
    fit(area.width() > 1.0 && area.height() > 1.0 ? area : QRectF(inside.center(), QSizeF(1.0, 1.0)));
    return sectorBox();
}

AxisPath PolarAxisPainter::thetaPath(double radius, bool isInner) const
{
    const AxisStyle& theta = m_style.axes[0];
    const double offset = offsetUnits(theta.line.offset) * (isInner ? -1.0 : 1.0);
    const double size = std::max(1.0, radius * m_radius + offset);
    // Fractions of a reversed axis begin at its largest value.
    const double from = m_scale.angle(m_scale.theta().value(0.0));
    const double to = m_scale.angle(m_scale.theta().value(1.0));
    return AxisPath::arc(m_center, size, from, to, isInner);
}

AxisPath PolarAxisPainter::ray(double angle) const
{
    // Seen from the centre, numbers stand to the right of the ray: below one that points to the right.
    const QPointF outward(std::sin(angle), std::cos(angle));
    const QPointF offset = outward * offsetUnits(m_style.axes[1].line.offset);
    return AxisPath::line(onCircle(angle, m_scale.innerRadius()) + offset, onCircle(angle, 1.0) + offset, outward);
}

/* The R axis outside of the plot, from the height of the centre on. */
AxisPath PolarAxisPainter::beside(AxisAlignment_e side, double offset) const
{
    const QRectF box = sectorBox();
    const double inner = m_scale.innerRadius() * m_radius;
    const bool isFlat = side == AxisAlignment_GridAreaTop || side == AxisAlignment_GridAreaBottom;
    // To the side on which there is more of the plot.
    const bool isBackwards = isFlat ? m_center.x() - box.left() > box.right() - m_center.x() + 1e-6
                                    : box.bottom() - m_center.y() > m_center.y() - box.top() + 1e-6;
    const QPointF along = isFlat ? QPointF(isBackwards ? -1.0 : 1.0, 0.0) : QPointF(0.0, isBackwards ? 1.0 : -1.0);
    QPointF outward;
    QPointF base = m_center;
    switch (side) {
    case AxisAlignment_GridAreaTop:
        outward = {0.0, -1.0};
        base.setY(box.top());
        break;
    case AxisAlignment_GridAreaBottom:
        outward = {0.0, 1.0};
        base.setY(box.bottom());
        break;
    case AxisAlignment_GridAreaLeft:
        outward = {-1.0, 0.0};
        base.setX(box.left());
        break;
    default:
        outward = {1.0, 0.0};
        base.setX(box.right());
        break;
    }
    base += outward * offset;
    return AxisPath::line(base + along * inner, base + along * m_radius, outward);
}

void PolarAxisPainter::addThetaLines(std::vector<Line>& lines) const
{
    const AxisStyle& style = m_style.axes[0];
    const auto add = [&](double radius, bool isInner, AxisParts parts) {
        const bool isAtBorder = radius > 1.0 - 1e-9 || isInner;
        lines.push_back(
            {{m_canvas, m_frameHeight, style, m_scale.theta(), thetaPath(radius, isInner), parts}, isAtBorder});
        if (m_scale.isFullCircle()) {
            lines.back().painter.closeRing();
        }
    };
    const AxisLineStyle& line = style.line;
    double radius = 1.0;
    bool isInner = false;
    switch (line.alignment) {
    case AxisAlignment_GridMin:
        radius = m_scale.innerRadius();
        isInner = true;
        break;
    case AxisAlignment_OpposingAxisValue:
        radius = std::clamp(m_scale.radius(line.opposingValue), 0.0, 1.0);
        break;
    case AxisAlignment_Viewport:
        radius = std::clamp(line.position / 100.0, 0.0, 1.0);
        break;
    default:
        break;
    }
    add(radius, isInner, AxisParts::of(style, line.isShown, &ShownOn::axisLine));
    const auto isWanted = [&](bool ShownOn::*where) {
        return style.ticks.shownOn.*where || style.labels.shownOn.*where || style.title.shownOn.*where;
    };
    if (isWanted(&ShownOn::gridMinimum)) {
        add(m_scale.innerRadius(), true, AxisParts::of(style, false, &ShownOn::gridMinimum));
    }
    if (isWanted(&ShownOn::gridMaximum)) {
        add(1.0, false, AxisParts::of(style, false, &ShownOn::gridMaximum));
    }
}

void PolarAxisPainter::addRLines(std::vector<Line>& lines) const
{
    const AxisStyle& style = m_style.axes[1];
    const AxisLineStyle& line = style.line;
    const auto add = [&](const AxisPath& path, AxisParts parts, bool isOutside) {
        lines.push_back({{m_canvas, m_frameHeight, style, m_scale.r(), path, parts}, isOutside});
    };
    double angle = m_scale.firstAngle();
    switch (line.alignment) {
    case AxisAlignment_GridMax:
        angle = m_scale.lastAngle();
        break;
    case AxisAlignment_OpposingAxisValue:
        angle = m_scale.angle(line.opposingValue);
        break;
    case AxisAlignment_SpecificAngle:
        angle = radians(line.angle);
        break;
    case AxisAlignment_GridAreaTop:
    case AxisAlignment_GridAreaBottom:
    case AxisAlignment_GridAreaLeft:
    case AxisAlignment_GridAreaRight:
        add(beside(line.alignment, offsetUnits(line.offset)), AxisParts::of(style, line.isShown, &ShownOn::axisLine),
            true);
        return;
    case AxisAlignment_Viewport:
        add(beside(AxisAlignment_GridAreaBottom,
                   m_viewport.bottom() - line.position / 100.0 * m_viewport.height() - sectorBox().bottom()),
            AxisParts::of(style, line.isShown, &ShownOn::axisLine), false);
        return;
    default:
        break;
    }
    add(ray(angle), AxisParts::of(style, line.isShown, &ShownOn::axisLine), false);
    AxisParts others = AxisParts::of(style, line.isShown, &ShownOn::allAxes);
    others.hasTitle = false; // once is enough
    std::vector<double> angles;
    if (line.hasBothDirections) {
        angles.push_back(angle + 0.5 * turn);
    }
    if (line.hasPerpendicular) {
        angles.push_back(angle + 0.25 * turn);
    }
    if (line.hasPerpendicular && line.hasBothDirections) {
        angles.push_back(angle + 0.75 * turn);
    }
    for (const double other : angles) {
        if (m_scale.hasAngle(other)) {
            add(ray(other), others, false);
        }
    }
    for (const auto& [where, border] : {std::pair(&ShownOn::gridMinimum, m_scale.firstAngle()),
                                        std::pair(&ShownOn::gridMaximum, m_scale.lastAngle())}) {
        if (style.ticks.shownOn.*where || style.labels.shownOn.*where || style.title.shownOn.*where) {
            add(ray(border), AxisParts::of(style, false, where), false);
        }
    }
}

std::vector<PolarAxisPainter::Line> PolarAxisPainter::lines() const
{
    std::vector<Line> lines;
    if (m_style.axes[0].isShown) {
        addThetaLines(lines);
    }
    if (m_style.axes[1].isShown) {
        addRLines(lines);
    }
    return lines;
}

QRectF PolarAxisPainter::bounds() const
{
    QRectF bounds = sectorBox();
    for (const Line& line : lines()) {
        bounds |= line.painter.bounds();
    }
    return bounds;
}

AxisTicks PolarAxisPainter::thetaTicks() const
{
    AxisTicks ticks =
        AxisLinePainter::ticksAlong(m_canvas, m_frameHeight, m_style.axes[0], m_scale.theta(), thetaPath(1.0, false));
    if (m_scale.isFullCircle()) {
        withoutLast(ticks.major);
        withoutLast(ticks.minor);
    }
    return ticks;
}

AxisTicks PolarAxisPainter::rTicks() const
{
    return AxisLinePainter::ticksAlong(m_canvas, m_frameHeight, m_style.axes[1], m_scale.r(), ray(0.0));
}

void PolarAxisPainter::paintGrid(bool isLast) const
{
    QPainter& painter = m_canvas.painter;
    painter.setBrush(Qt::NoBrush);
    const double inches = m_frameHeight / 100.0;
    const auto begin = [&](const GridLineStyle& grid) {
        painter.setPen(
            patternPen(m_canvas, grid.color, grid.thickness * inches, grid.pattern, grid.patternLength * inches));
        return grid.isShown && grid.isLast == isLast;
    };
    const auto rays = [&](const GridLineStyle& grid, const std::vector<Tick>& ticks) {
        if (!begin(grid)) {
            return;
        }
        const double from = std::max(m_scale.innerRadius(), grid.cutoff / 100.0);
        for (const Tick& tick : ticks) {
            const double angle = m_scale.angle(tick.value);
            painter.drawLine(onCircle(angle, from), onCircle(angle, 1.0));
        }
    };
    const auto circles = [&](const GridLineStyle& grid, const std::vector<Tick>& ticks) {
        if (!begin(grid)) {
            return;
        }
        for (const Tick& tick : ticks) {
            const double radius = m_scale.radius(tick.value) * m_radius;
            const QRectF box(m_center - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius));
            QPainterPath arc;
            const double start = m_scale.firstAngle() / turn * 360.0;
            arc.arcMoveTo(box, start);
            arc.arcTo(box, start, (m_scale.lastAngle() - m_scale.firstAngle()) / turn * 360.0);
            painter.drawPath(arc);
        }
    };
    const AxisTicks theta = thetaTicks();
    const AxisTicks r = rTicks();
    if (m_style.axes[0].isShown) {
        rays(m_style.axes[0].minorGrid, theta.minor);
        rays(m_style.axes[0].grid, theta.major);
    }
    if (m_style.axes[1].isShown) {
        circles(m_style.axes[1].minorGrid, r.minor);
        circles(m_style.axes[1].grid, r.major);
    }
}

void PolarAxisPainter::paintPreciseGrid() const
{
    const AxisAreaStyle& style = m_style.area;
    if (!style.hasPreciseGrid) {
        return;
    }
    constexpr double inchesPerCentimetre = 1.0 / 2.54;
    const double size =
        std::max(style.preciseGridSize * inchesPerCentimetre * m_canvas.inch, 1.0 / m_canvas.resolution());
    const AxisTicks theta = thetaTicks();
    const AxisTicks r = rTicks();
    for (const auto* angles : {&theta.major, &theta.minor}) {
        for (const auto* radii : {&r.major, &r.minor}) {
            for (const Tick& angle : *angles) {
                for (const Tick& radius : *radii) {
                    const QPointF middle = place(angle.value, radius.value);
                    m_canvas.painter.fillRect(QRectF(middle - QPointF(0.5 * size, 0.5 * size), QSizeF(size, size)),
                                              style.preciseGridColor);
                }
            }
        }
    }
}

void PolarAxisPainter::paintFills() const
{
    const AxisAreaStyle& style = m_style.area;
    if (style.isViewportFilled) {
        m_canvas.painter.fillRect(m_viewport, style.viewportFill);
    }
    if (style.isFilled) {
        m_canvas.painter.fillPath(wholeSector(), style.fill);
    }
}

void PolarAxisPainter::paintBehind() const
{
    const AxisAreaStyle& style = m_style.area;
    paintFills();
    if (style.hasViewportBorder) {
        m_canvas.painter.setPen(
            m_canvas.pen(style.viewportBorderColor, style.viewportBorderThickness / 100.0 * m_frameHeight));
        m_canvas.painter.setBrush(Qt::NoBrush);
        m_canvas.painter.drawRect(m_viewport);
    }
    paintGrid(false);
}

void PolarAxisPainter::paintFront() const
{
    paintGrid(true);
    paintPreciseGrid();
    const AxisAreaStyle& style = m_style.area;
    if (style.hasBorder) {
        m_canvas.painter.strokePath(wholeSector(),
                                    m_canvas.pen(style.borderColor, style.borderThickness / 100.0 * m_frameHeight));
    }
    const auto paintGround = [&] {
        m_canvas.painter.fillRect(m_canvas.painter.clipBoundingRect(), m_style.frame.background);
        paintFills();
    };
    m_canvas.markArea(axisObject('T', AxisSubObject_GridArea), wholeSector().toFillPolygon());
    for (const Line& line : lines()) {
        line.painter.mark(&line.painter.style() == &m_style.axes[0] ? 'T' : 'R');
        line.painter.paint(line.isAtBorder ? std::function<void()>() : paintGround);
    }
}

} // namespace vantrix::view
