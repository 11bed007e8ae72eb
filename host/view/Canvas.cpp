#include "view/Canvas.h"

#include <QFontMetricsF>
#include <QPaintDevice>

#include <algorithm>
#include <cmath>

namespace vantrix::view {

QFont Canvas::font(double height, bool isBold) const
{
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Open Sans"), QStringLiteral("Liberation Sans"),
                      QStringLiteral("Helvetica"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setBold(isBold);
    // A size in points is a fraction of an inch of the device, not of the paper.
    font.setPointSizeF(std::max(1.0, height * inch * 72.0 / painter.device()->logicalDpiY()));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(textStrategy(height));
    return font;
}

QFont Canvas::font(Font_e kind, double height) const
{
    const bool isBold = kind == Font_HelveticaBold || kind == Font_TimesBold || kind == Font_TimesItalicBold ||
                        kind == Font_CourierBold;
    QFont result = font(height, isBold);
    switch (kind) {
    case Font_Times:
    case Font_TimesItalic:
    case Font_TimesBold:
    case Font_TimesItalicBold:
    case Font_Greek:
    case Font_Math:
        result.setFamilies({QStringLiteral("Noto Serif"), QStringLiteral("Liberation Serif"), QStringLiteral("Times")});
        result.setStyleHint(QFont::Serif);
        result.setItalic(kind == Font_TimesItalic || kind == Font_TimesItalicBold);
        break;
    case Font_Courier:
    case Font_CourierBold:
        result.setFamilies(
            {QStringLiteral("Noto Sans Mono"), QStringLiteral("Liberation Mono"), QStringLiteral("Courier")});
        result.setStyleHint(QFont::Monospace);
        break;
    case Font_Helvetica:
    case Font_HelveticaBold:
    case Font_UserDefined:
        break;
    }
    result.setStyleStrategy(textStrategy(height)); // a hint for the family sets another
    return result;
}

QFont::StyleStrategy Canvas::textStrategy(double height) const
{
    constexpr double smallPixels = 12.0;
    const bool isSmall = height * inch * resolution() < smallPixels;
    return edges.arePlain || (edges.arePlainWhereSmall && isSmall) ? QFont::NoAntialias : QFont::PreferDefault;
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

} // namespace vantrix::view
