#include "view/NumberLabel.h"

#include <QTransform>

namespace vantrix::view {
namespace {

constexpr double exponentScale = 0.72;
constexpr double exponentRaise = 0.32; /* of the text's height */

QFont scaled(const QFont& font, double factor)
{
    QFont result = font;
    result.setPointSizeF(font.pointSizeF() * factor);
    return result;
}

} // namespace

NumberLabel::NumberLabel(const Canvas& canvas, const NumberText& number, const QFont& font)
    : m_canvas(canvas)
    , m_text(QString::fromStdString(number.text))
    , m_exponent(QString::fromStdString(number.exponent))
    , m_font(font)
    , m_exponentFont(scaled(font, exponentScale))
    , m_size(canvas.textSize(m_text, font))
    , m_textWidth(m_size.width())
    , m_raise(exponentRaise * m_size.height())
{
    if (!m_exponent.isEmpty()) {
        m_size.rwidth() += canvas.textSize(m_exponent, m_exponentFont).width();
    }
}

void NumberLabel::draw(QPointF middle, double degrees, const QColor& color) const
{
    QPainter& painter = m_canvas.painter;
    painter.save();
    painter.translate(middle);
    painter.rotate(-degrees);
    const double left = -0.5 * m_size.width();
    m_canvas.drawText({left, 0.0}, Qt::AlignLeft | Qt::AlignVCenter, m_text, m_font, color);
    if (!m_exponent.isEmpty()) {
        m_canvas.drawText({left + m_textWidth, -m_raise}, Qt::AlignLeft | Qt::AlignVCenter, m_exponent, m_exponentFont,
                          color);
    }
    painter.restore();
}

QPolygonF turnedBox(QPointF middle, QSizeF size, double degrees)
{
    QTransform transform;
    transform.translate(middle.x(), middle.y());
    transform.rotate(-degrees);
    return transform.map(QPolygonF(QRectF(-0.5 * size.width(), -0.5 * size.height(), size.width(), size.height())));
}

} // namespace vantrix::view
