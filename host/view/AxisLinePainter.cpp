#include "view/AxisLinePainter.h"

#include "view/HitMap.h"
#include "view/NumberLabel.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantrix::view {
namespace {

double degreesOf(QPointF direction)
{
    return std::atan2(-direction.y(), direction.x()) * 180.0 / std::numbers::pi;
}

/* The same line of text, but never upside down; upright text reads upwards. */
double readable(double degrees)
{
    double turned = std::remainder(degrees, 360.0);
    if (turned > 90.0 + 1e-6) {
        turned -= 180.0;
    } else if (turned < -90.0 + 1e-6) {
        turned += 180.0;
    }
    return turned;
}

/* How far a turned box reaches from its middle in a direction. */
double reachOf(QSizeF size, double degrees, QPointF direction)
{
    double reach = 0.0;
    for (const QPointF& corner : turnedBox({0.0, 0.0}, size, degrees)) {
        reach = std::max(reach, QPointF::dotProduct(corner, direction));
    }
    return reach;
}

/* What moves a box into a room that it is not larger than. */
QPointF shiftInto(const QRectF& room, const QRectF& box)
{
    return {std::max(0.0, room.left() - box.left()) - std::max(0.0, box.right() - room.right()),
            std::max(0.0, room.top() - box.top()) - std::max(0.0, box.bottom() - room.bottom())};
}

QFont fontOf(const Canvas& canvas, const TextStyle& text, double frameHeight)
{
    return canvas.font(text.font, text.inches(frameHeight));
}

double degreesAlong(const TickLabelStyle& style, const AxisPath& path, double fraction)
{
    switch (style.alignment) {
    case LabelAlignment_AlongAxis:
        return readable(degreesOf(path.direction(fraction)));
    case LabelAlignment_Perpendicular:
        return readable(degreesOf(path.direction(fraction)) - 90.0);
    case LabelAlignment_ByAngle:
        break;
    }
    return style.angle;
}

} // namespace

AxisParts AxisParts::of(const AxisStyle& style, bool hasLine, bool ShownOn::*where)
{
    return {hasLine, style.ticks.shownOn.*where, style.labels.shownOn.*where, style.title.shownOn.*where};
}

AxisTicks AxisLinePainter::ticksAlong(const Canvas& canvas, double frameHeight, const AxisStyle& style,
                                      const AxisScale& scale, const AxisPath& path)
{
    const QFont font = fontOf(canvas, style.labels.text, frameHeight);
    const double height = canvas.textSize(QStringLiteral("0"), font).height();
    TickRequest request;
    request.length = std::max(path.length(), 1.0);
    request.minimumDistance = 2.2 * height;
    request.labelExtent = [&](const NumberText& number) {
        // Two boxes clear each other when they are apart along their text or across it.
        const QSizeF size = NumberLabel(canvas, number, font).size();
        double extent = 0.0;
        const int samples = path.isStraight() ? 1 : 24;
        for (int i = 0; i < samples; ++i) {
            const double fraction = (i + 0.5) / samples;
            const double between = (degreesAlong(style.labels, path, fraction) - degreesOf(path.direction(fraction))) *
                                   std::numbers::pi / 180.0;
            const double along = std::max(std::abs(std::cos(between)), 1e-9);
            const double across = std::max(std::abs(std::sin(between)), 1e-9);
            extent = std::max(extent, std::min((size.width() + 0.8 * height) / along, 1.2 * size.height() / across));
        }
        return extent;
    };
    request.spacing = style.spacing;
    request.anchor = style.anchor;
    request.minorCount = style.ticks.minorCount;
    request.number = style.labels.number;
    request.skip = style.labels.skip;
    return AxisTicks::make(scale, request);
}

AxisLinePainter::AxisLinePainter(const Canvas& canvas, double frameHeight, const AxisStyle& style,
                                 const AxisScale& scale, const AxisPath& path, AxisParts parts)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_style(style)
    , m_path(path)
    , m_parts(parts)
    , m_ticks(ticksAlong(canvas, frameHeight, style, scale, path))
    , m_labelFont(fontOf(canvas, style.labels.text, frameHeight))
{
    layOut();
}

double AxisLinePainter::ticksOutside() const
{
    if (!m_parts.hasTicks || m_style.ticks.direction == TickDirection_In) {
        return 0.0;
    }
    return units(m_style.ticks.length) * (m_style.ticks.direction == TickDirection_Centered ? 0.5 : 1.0);
}

double AxisLinePainter::labelDegrees(double fraction) const
{
    return degreesAlong(m_style.labels, m_path, fraction);
}

void AxisLinePainter::layOut()
{
    m_labels.clear();
    m_title.reset();
    m_reach = ticksOutside();
    const double offset = ticksOutside() + units(m_style.labels.offset);
    for (const Tick& tick : m_ticks.major) {
        if (!m_parts.hasLabels || tick.label.isEmpty()) {
            continue;
        }
        const QSizeF size = NumberLabel(m_canvas, tick.label, m_labelFont).size();
        const double degrees = labelDegrees(tick.fraction);
        const QPointF outward = m_path.outward(tick.fraction);
        const double half = reachOf(size, degrees, outward);
        m_labels.push_back(
            {tick.fraction, tick.label, m_path.place(tick.fraction) + outward * (offset + half), degrees, size});
        m_reach = std::max(m_reach, offset + 2.0 * half);
    }
    if (!m_parts.hasTitle || m_style.title.words.empty()) {
        return;
    }
    const double along = m_style.title.percentAlong / 100.0;
    Title title;
    title.text = QString::fromStdString(m_style.title.words);
    title.font = fontOf(m_canvas, m_style.title.text, m_frameHeight);
    title.size = m_canvas.textSize(title.text, title.font);
    title.degrees = readable(degreesOf(m_path.direction(along)));
    const QPointF outward = m_path.outward(along);
    const double half = reachOf(title.size, title.degrees, outward);
    const double wanted = units(m_style.title.offset);
    const double clear = m_reach + 0.25 * title.size.height();
    const double distance = wanted < 0.0 ? wanted : std::max(wanted, clear);
    title.middle = m_path.place(along) + outward * (distance + half);
    m_reach = std::max(m_reach, distance + 2.0 * half);
    m_title = title;
}

void AxisLinePainter::closeRing()
{
    for (auto* ticks : {&m_ticks.major, &m_ticks.minor}) {
        std::erase_if(*ticks, [](const Tick& tick) { return tick.fraction > 1.0 - 1e-9; });
    }
    layOut();
}

void AxisLinePainter::clearIntersections(const std::vector<double>& fractions)
{
    if (m_style.labels.isAtIntersections) {
        return;
    }
    for (Tick& tick : m_ticks.major) {
        if (std::any_of(fractions.begin(), fractions.end(),
                        [&](double crossing) { return std::abs(crossing - tick.fraction) < 0.005; })) {
            tick.label = {};
        }
    }
    layOut();
}

void AxisLinePainter::keepTitleInside(const QRectF& room)
{
    if (!m_title || room.contains(turnedBox(m_title->middle, m_title->size, m_title->degrees).boundingRect())) {
        return;
    }
    for (const double end : {1.0, 0.0}) {
        const QPointF away = m_path.direction(end) * (end > 0.5 ? 1.0 : -1.0);
        const double distance = ticksOutside() + 0.5 * m_title->size.height();
        const QPointF middle = m_path.place(end) + away * (distance + reachOf(m_title->size, 0.0, away));
        const QPointF shift = shiftInto(room, turnedBox(middle, m_title->size, 0.0).boundingRect());
        if (room.contains(m_path.place(end)) && QPointF::dotProduct(shift, away) > -0.5 * distance) {
            m_title->middle = middle + shift;
            m_title->degrees = 0.0;
            return;
        }
    }
}

QRectF AxisLinePainter::bounds() const
{
    QRectF bounds = m_path.painterPath().boundingRect();
    const double outside = ticksOutside();
    const int samples = m_path.isStraight() ? 1 : 72;
    for (int i = 0; i <= samples; ++i) {
        const double fraction = double(i) / samples;
        const QPointF end = m_path.place(fraction) + m_path.outward(fraction) * outside;
        bounds |= QRectF(end, QSizeF()).adjusted(-1e-9, -1e-9, 1e-9, 1e-9);
    }
    for (const Label& label : m_labels) {
        bounds |= turnedBox(label.middle, label.size, label.degrees).boundingRect();
    }
    if (m_title) {
        bounds |= turnedBox(m_title->middle, m_title->size, m_title->degrees).boundingRect();
    }
    return bounds;
}

double AxisLinePainter::reach() const
{
    return m_reach;
}

void AxisLinePainter::paintTicks(const std::vector<Tick>& ticks, double length, double thickness) const
{
    m_canvas.painter.setPen(m_canvas.pen(m_style.line.color, thickness / 100.0 * m_frameHeight));
    const TickDirection_e direction = m_style.ticks.direction;
    const double outside = direction == TickDirection_Out ? 1.0 : direction == TickDirection_Centered ? 0.5 : 0.0;
    for (const Tick& tick : ticks) {
        const QPointF at = m_path.place(tick.fraction);
        const QPointF mark = m_path.outward(tick.fraction) * units(length);
        m_canvas.painter.drawLine(at + outside * mark, at - (1.0 - outside) * mark);
    }
}

void AxisLinePainter::paint(const std::function<void()>& paintGround) const
{
    QPainter& painter = m_canvas.painter;
    if (paintGround && m_style.labels.erasesBehind) {
        QPainterPath boxes;
        boxes.setFillRule(Qt::WindingFill);
        for (const Label& label : m_labels) {
            boxes.addPolygon(turnedBox(label.middle, label.size * 1.04, label.degrees));
            boxes.closeSubpath();
        }
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false); // what lies below would shine through at the edges
        painter.setClipPath(boxes, Qt::IntersectClip);
        paintGround();
        painter.restore();
    }
    if (m_parts.hasLine) {
        QPen pen = m_canvas.pen(m_style.line.color, m_style.line.thickness / 100.0 * m_frameHeight);
        pen.setJoinStyle(Qt::RoundJoin);
        painter.strokePath(m_path.painterPath(), pen);
    }
    if (m_parts.hasTicks) {
        paintTicks(m_ticks.minor, m_style.ticks.minorLength, m_style.ticks.minorThickness);
        paintTicks(m_ticks.major, m_style.ticks.length, m_style.ticks.thickness);
    }
    for (const Label& label : m_labels) {
        NumberLabel(m_canvas, label.number, m_labelFont).draw(label.middle, label.degrees, m_style.labels.text.color);
    }
    if (m_title) {
        m_canvas.drawTurnedText(m_title->middle, m_title->degrees, m_title->text, m_title->font,
                                m_style.title.text.color);
    }
}

void AxisLinePainter::mark(char axis, int axisNumber) const
{
    if (m_canvas.hits) {
        m_canvas.hits->addTicks(axis, axisNumber, m_ticks.spacing);
    }
    const kernel::PickedObject line = axisObject(axis, AxisSubObject_AxisLine, axisNumber);
    if (m_parts.hasLine) {
        m_canvas.markLine(line, m_path.painterPath().toSubpathPolygons().value(0));
    }
    for (const Label& label : m_labels) {
        m_canvas.markArea(line, turnedBox(label.middle, label.size, label.degrees));
    }
    if (m_title) {
        m_canvas.markArea(axisObject(axis, AxisSubObject_Title, axisNumber),
                          turnedBox(m_title->middle, m_title->size, m_title->degrees));
    }
}

} // namespace vantrix::view
