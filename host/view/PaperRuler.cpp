#include "view/PaperRuler.h"

#include <QPainter>

#include <cmath>

namespace vantrix::view {

namespace {

constexpr double closestTicks = 5.0;   /* pixels */
constexpr double closestLabels = 34.0; /* pixels */
constexpr int labelledTick = 8;        /* lengths in pixels */
constexpr int plainTick = 4;
const QColor background(0xf4, 0xf6, 0xf8);
const QColor edge(0xb4, 0xbc, 0xc6);
const QColor ink(0x40, 0x48, 0x52);

int tickLength(const PaperRuler::Tick& tick)
{
    return tick.label.isEmpty() ? plainTick : labelledTick;
}

} // namespace

PaperRuler::PaperRuler(PaperUnitSpacing_e spacing)
    : m_spacing(PaperSpacing::of(spacing))
{}

std::vector<PaperRuler::Tick> PaperRuler::ticks(double from, double to, double pixelsPerInch) const
{
    const int steps = m_spacing.stepsFor(closestTicks, pixelsPerInch);
    const int labelSteps = m_spacing.stepsFor(closestLabels, pixelsPerInch);
    const double length = steps * m_spacing.inches;
    std::vector<Tick> found;
    const auto toStep = [length](double inches) { return std::lround(std::ceil(inches / length)); };
    for (long i = toStep(from); static_cast<double>(i) * length <= to; ++i) {
        const double inches = static_cast<double>(i) * length;
        const bool isLabelled = i * steps % labelSteps == 0;
        // Six significant digits leave no trace of the rounding of a product.
        found.push_back({inches, isLabelled ? QString::number(inches * m_spacing.unitsPerInch) : QString()});
    }
    return found;
}

void PaperRuler::paint(QPainter& painter, const QRect& area, QPointF origin, double pixelsPerInch) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    QFont font = painter.font();
    font.setPixelSize(9);
    painter.setFont(font);
    paintHorizontal(painter, area, origin.x(), pixelsPerInch);
    paintVertical(painter, area, origin.y(), pixelsPerInch);

    const QRect corner(area.left(), area.top(), thickness, thickness);
    painter.fillRect(corner, background);
    painter.setPen(ink);
    painter.drawText(corner, Qt::AlignCenter, QString::fromLatin1(m_spacing.unit));
    painter.restore();
}

void PaperRuler::paintHorizontal(QPainter& painter, const QRect& area, double origin, double pixelsPerInch) const
{
    const QRect strip(area.left(), area.top(), area.width(), thickness);
    painter.fillRect(strip, background);
    painter.setPen(edge);
    painter.drawLine(strip.bottomLeft(), strip.bottomRight());
    painter.setPen(ink);
    const auto toInches = [&](int x) { return (x - origin) / pixelsPerInch; };
    for (const Tick& tick : ticks(toInches(strip.left()), toInches(strip.right()), pixelsPerInch)) {
        const int x = static_cast<int>(std::lround(origin + tick.inches * pixelsPerInch));
        painter.drawLine(x, strip.bottom() - tickLength(tick), x, strip.bottom());
        painter.drawText(QPoint(x + 3, strip.top() + 10), tick.label);
    }
}

void PaperRuler::paintVertical(QPainter& painter, const QRect& area, double origin, double pixelsPerInch) const
{
    const QRect strip(area.left(), area.top(), thickness, area.height());
    painter.fillRect(strip, background);
    painter.setPen(edge);
    painter.drawLine(strip.topRight(), strip.bottomRight());
    painter.setPen(ink);
    const auto toInches = [&](int y) { return (y - origin) / pixelsPerInch; };
    for (const Tick& tick : ticks(toInches(strip.top()), toInches(strip.bottom()), pixelsPerInch)) {
        const int y = static_cast<int>(std::lround(origin + tick.inches * pixelsPerInch));
        painter.drawLine(strip.right() - tickLength(tick), y, strip.right(), y);
        painter.save();
        painter.translate(strip.left() + 10, y + 3);
        painter.rotate(90);
        painter.drawText(0, 0, tick.label);
        painter.restore();
    }
}

} // namespace vantrix::view
