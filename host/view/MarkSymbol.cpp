#include "view/MarkSymbol.h"

#include "view/SymbolShape.h"

#include <QTransform>

namespace vantrix::view {
MarkSymbol::MarkSymbol(const Canvas& canvas, double frameHeight, const SymbolStyle& style)
    : m_canvas(canvas)
    , m_style(style)
    , m_radius(0.5 * style.size / 100.0 * frameHeight * canvas.inch)
    , m_pen(canvas.pen(style.color, style.thickness / 100.0 * frameHeight))
    , m_font(canvas.font(style.font, style.size / 100.0 * frameHeight))
    , m_outline(QTransform::fromScale(2.0 * m_radius, -2.0 * m_radius).map(symbolOutline(style.shape)))
{}

void MarkSymbol::draw(QPointF middle) const
{
    if (!m_style.character.empty()) {
        m_canvas.drawText(middle, Qt::AlignCenter, QString::fromStdString(m_style.character), m_font, m_style.color);
        return;
    }
    QPainter& painter = m_canvas.painter;
    painter.save();
    painter.translate(middle);
    painter.setPen(m_pen);
    const bool isDot = m_style.shape == GeomShape_Point;
    painter.setBrush(m_style.isFilled ? QBrush(m_style.fill) : isDot ? QBrush(m_style.color) : QBrush(Qt::NoBrush));
    painter.drawPolygon(m_outline);
    painter.restore();
}

} // namespace vantrix::view
