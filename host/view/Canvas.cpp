#include "view/Canvas.h"

#include "view/HitMap.h"

#include <QFontMetricsF>
#include <QPaintDevice>

#include <algorithm>
#include <cmath>

namespace vantrix::view {

namespace {

constexpr double smallText = 12.0; /* pixels of height */

/* The families that may stand for one, the best first. */
QStringList familiesOf(Font_e family)
{
    switch (family) {
    case Font_Times:
    case Font_TimesItalic:
    case Font_TimesBold:
    case Font_TimesItalicBold:
    case Font_Greek:
    case Font_Math:
        return {QStringLiteral("Liberation Serif"), QStringLiteral("Times New Roman"), QStringLiteral("DejaVu Serif"),
                QStringLiteral("serif")};
    case Font_Courier:
    case Font_CourierBold:
        return {QStringLiteral("Liberation Mono"), QStringLiteral("Courier New"), QStringLiteral("DejaVu Sans Mono"),
                QStringLiteral("monospace")};
    default:
        return {QStringLiteral("Noto Sans"), QStringLiteral("Open Sans"), QStringLiteral("Liberation Sans"),
                QStringLiteral("Helvetica"), QStringLiteral("Arial")};
    }
}

QFont::StyleHint hintOf(Font_e family)
{
    if ((family >= Font_Times && family <= Font_TimesItalicBold) || family == Font_Greek || family == Font_Math) {
        return QFont::Serif;
    }
    return family == Font_Courier || family == Font_CourierBold ? QFont::Monospace : QFont::SansSerif;
}

} // namespace

QFont Canvas::font(double height, bool isBold) const
{
    return font(isBold ? Font_HelveticaBold : Font_Helvetica, height);
}

QFont Canvas::typeface(Font_e family)
{
    QFont font;
    font.setFamilies(familiesOf(family));
    font.setStyleHint(hintOf(family));
    font.setBold(family == Font_HelveticaBold || family == Font_TimesBold || family == Font_TimesItalicBold ||
                 family == Font_CourierBold);
    font.setItalic(family == Font_TimesItalic || family == Font_TimesItalicBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont Canvas::font(Font_e family, double height) const
{
    QFont font = typeface(family);
    const bool isSmall = height * inch * resolution() < smallText;
    const bool isPlain = edges.arePlain || (edges.arePlainWhereSmall && isSmall);
    font.setStyleHint(hintOf(family), isPlain ? QFont::NoAntialias : QFont::PreferDefault);
    // A size in points is a fraction of an inch of the device, not of the paper.
    font.setPointSizeF(std::max(1.0, height * inch * 72.0 / painter.device()->logicalDpiY()));
    return font;
}

QPen Canvas::pen(const QColor& color, double thickness) const
{
    return {color, std::max(thickness * inch, 1.0 / resolution()), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin};
}

QSizeF Canvas::textSize(const QString& text, const QFont& font) const
{
    const QFontMetricsF metrics(font, painter.device());
    return {metrics.horizontalAdvance(text), metrics.ascent() + metrics.descent()};
}

void Canvas::drawText(QPointF point, Qt::Alignment alignment, const QString& text, const QFont& font,
                      const QColor& color) const
{
    const QFontMetricsF metrics(font, painter.device());
    const QSizeF size = textSize(text, font);
    double x = point.x() - 0.5 * size.width();
    if (alignment & Qt::AlignLeft) {
        x = point.x();
    } else if (alignment & Qt::AlignRight) {
        x = point.x() - size.width();
    }
    double top = point.y() - 0.5 * size.height();
    if (alignment & Qt::AlignTop) {
        top = point.y();
    } else if (alignment & Qt::AlignBottom) {
        top = point.y() - size.height();
    }
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(QPointF(x, top + metrics.ascent()), text);
}

void Canvas::drawTurnedText(QPointF middle, double degrees, const QString& text, const QFont& font,
                            const QColor& color) const
{
    painter.save();
    painter.translate(middle);
    painter.rotate(-degrees);
    drawText({0.0, 0.0}, Qt::AlignCenter, text, font, color);
    painter.restore();
}

double Canvas::resolution() const
{
    const double scale = std::hypot(painter.worldTransform().m11(), painter.worldTransform().m12());
    return std::max(1e-6, scale * painter.device()->devicePixelRatioF());
}

QRectF Canvas::aligned(const QRectF& rect) const
{
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(rect);
    const QPointF topLeft(std::round(device.left()), std::round(device.top()));
    const QPointF bottomRight(std::round(device.right()), std::round(device.bottom()));
    return toDevice.inverted().mapRect(QRectF(topLeft, bottomRight));
}

void Canvas::markArea(const kernel::PickedObject& object, const QPolygonF& outline) const
{
    if (hits) {
        hits->addArea(object, painter.transform().map(outline));
    }
}

void Canvas::markLine(const kernel::PickedObject& object, const QPolygonF& line) const
{
    if (hits) {
        hits->addLine(object, painter.transform().map(line));
    }
}

} // namespace vantrix::view
