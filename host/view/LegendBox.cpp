#include "view/LegendBox.h"

namespace vantrix::view {
namespace {

/* Which part of a box lies before its anchor: across and down. */
QPointF anchorParts(AnchorAlignment_e anchor)
{
    const int column = static_cast<int>(anchor) % 3;
    const int row = static_cast<int>(anchor) / 3;
    return {0.5 * column, 0.5 * row};
}

} // namespace

LegendBox::LegendBox(const Canvas& canvas, double frameHeight, const LegendStyle& style)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_style(style)
    , m_font(canvas.font(style.text.font, style.text.inches(frameHeight)))
    , m_textHeight(canvas.textSize(QStringLiteral("X"), m_font).height())
{}

double LegendBox::margin() const
{
    return m_style.box == TextBox_None ? 0.0 : m_style.boxMargin / 100.0 * m_textHeight;
}

QRectF LegendBox::placedRect(const QRectF& frame, QSizeF size) const
{
    const QPointF anchor(frame.left() + m_style.position.x() * frame.width(),
                         frame.bottom() - m_style.position.y() * frame.height());
    const QPointF parts = anchorParts(m_style.anchor);
    return {anchor - QPointF(parts.x() * size.width(), parts.y() * size.height()), size};
}

void LegendBox::paintBox(const QRectF& rect) const
{
    if (m_style.box != TextBox_None) {
        m_canvas.painter.setPen(m_canvas.pen(m_style.boxColor, m_style.boxThickness / 100.0 * m_frameHeight));
        m_canvas.painter.setBrush(m_style.box == TextBox_Filled ? QBrush(m_style.boxFill) : QBrush(Qt::NoBrush));
        m_canvas.painter.drawRect(rect);
    }
}

void LegendBox::paintRows(const QRectF& rect, std::size_t count,
                          const std::function<void(std::size_t row, QPointF left)>& paintRow) const
{
    QPainter& painter = m_canvas.painter;
    painter.save();
    paintBox(rect);
    painter.setClipRect(rect.adjusted(-1.0, -1.0, 1.0, 1.0), Qt::IntersectClip);
    QPointF left(rect.left() + margin(), rect.top() + margin() + 0.5 * rowHeight());
    for (std::size_t row = 0; row < count && left.y() + 0.5 * m_textHeight <= rect.bottom() + 1.0; ++row) {
        paintRow(row, left);
        left.ry() += rowHeight();
    }
    painter.restore();
}

void LegendBox::drawText(QPointF point, Qt::Alignment alignment, const QString& text) const
{
    m_canvas.drawText(point, alignment, text, m_font, m_style.text.color);
}

} // namespace vantrix::view
