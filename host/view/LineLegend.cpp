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
    double highest = 0.0;
    for (const LineMapStyle& map : style.lineMaps) {
        if (map.hasLines || map.hasSymbols) {
            m_maps.push_back(&map);
        }
        if (map.hasSymbols) {
            constexpr double apart = 1.1;
            highest = std::max(highest, apart * 2.0 * MarkSymbol(canvas, frameHeight, map.symbol).radius());
        }
    }
    m_box.makeRoom(highest);
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
    m_box.paintRows(rect, m_maps.size(), [&](std::size_t row, QPointF left) {
        const LineMapStyle& map = *m_maps[row];
        if (map.hasLines) {
            painter.setPen(LinePlot::pen(m_canvas, m_frameHeight, map));
            painter.drawLine(left, left + QPointF(sampleWidth(), 0.0));
        }
        if (map.hasSymbols) {
            MarkSymbol(m_canvas, m_frameHeight, map.symbol).draw(left + QPointF(0.5 * sampleWidth(), 0.0));
        }
        if (style().hasNames) {
            m_box.drawText(left + QPointF(sampleWidth() + m_box.gap(), 0.0), Qt::AlignLeft | Qt::AlignVCenter,
                           QString::fromStdString(map.name));
        }
    });
}

} // namespace vantrix::view
