#include "view/LineLegend.h"

#include "view/LinePlot.h"
#include "view/MarkSymbol.h"

#include <algorithm>

namespace vantrix::view {

LineLegend::LineLegend(const Canvas& canvas, double frameHeight, const PlotStyle& style)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_box(canvas, frameHeight, style.lineLegend)
{
    for (const LineMapStyle& map : style.lineMaps) {
        if (map.hasLines || map.hasSymbols) {
            m_maps.push_back(&map);
        }
    }
}

bool LineLegend::isShown() const
{
    return style().isShown && !m_maps.empty();
}

QSizeF LineLegend::size() const
{
    double widest = 0.0;
    for (const LineMapStyle* map : m_maps) {
        widest = std::max(widest, m_box.textWidth(QString::fromStdString(map->name)));
    }
    const double text = style().hasNames ? m_box.gap() + widest : 0.0;
    const double margins = 2.0 * m_box.margin();
    return {sampleWidth() + text + margins, m_box.rowHeight() * double(m_maps.size()) + margins};
}

void LineLegend::paint(const QRectF& rect) const
{
    QPainter& painter = m_canvas.painter;
    painter.save();
    m_box.paintBox(rect);
    painter.setClipRect(rect.adjusted(-1.0, -1.0, 1.0, 1.0), Qt::IntersectClip);
    const double left = rect.left() + m_box.margin();
    double y = rect.top() + m_box.margin() + 0.5 * m_box.rowHeight();
    for (const LineMapStyle* map : m_maps) {
        if (y + 0.5 * m_box.textHeight() > rect.bottom() + 1.0) {
            break;
        }
        if (map->hasLines) {
            painter.setPen(LinePlot::pen(m_canvas, m_frameHeight, *map));
            painter.drawLine(QPointF(left, y), QPointF(left + sampleWidth(), y));
        }
        if (map->hasSymbols) {
            MarkSymbol(m_canvas, m_frameHeight, map->symbol).draw({left + 0.5 * sampleWidth(), y});
        }
        if (style().hasNames) {
            m_box.drawText({left + sampleWidth() + m_box.gap(), y}, Qt::AlignLeft | Qt::AlignVCenter,
                           QString::fromStdString(map->name));
        }
        y += m_box.rowHeight();
    }
    painter.restore();
}

} // namespace vantrix::view
