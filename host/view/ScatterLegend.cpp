#include "view/ScatterLegend.h"

#include "view/MarkSymbol.h"

#include <algorithm>

namespace vantrix::view {

ScatterLegend::ScatterLegend(const Canvas& canvas, double frameHeight, const PlotStyle& style)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_box(canvas, frameHeight, style.scatterLegend)
{
    for (const ZoneStyle& zone : style.zones) {
        if (zone.scatter.isShown) {
            m_zones.push_back(&zone);
        }
    }
}

QSizeF ScatterLegend::size() const
{
    double widest = 0.0;
    for (const ZoneStyle* zone : m_zones) {
        widest = std::max(widest, m_box.textWidth(QString::fromStdString(zone->name)));
    }
    const double margins = 2.0 * m_box.margin();
    return {symbolWidth() + m_box.gap() + widest + margins, m_box.rowHeight() * double(m_zones.size()) + margins};
}

void ScatterLegend::paint(const QRectF& rect) const
{
    // A symbol sized by its variable has no size of its own, and a large one must not cover other rows.
    const double most = 90.0 * m_box.textHeight() / (m_frameHeight * m_canvas.inch);
    m_box.paintRows(rect, m_zones.size(), [&](std::size_t row, QPointF left) {
        const ZoneStyle& zone = *m_zones[row];
        SymbolStyle symbol = zone.scatter.symbol();
        symbol.size = zone.scatter.isSizedByVariable ? most : std::min(symbol.size, most);
        MarkSymbol(m_canvas, m_frameHeight, symbol).draw(left + QPointF(0.5 * symbolWidth(), 0.0));
        m_box.drawText(left + QPointF(symbolWidth() + m_box.gap(), 0.0), Qt::AlignLeft | Qt::AlignVCenter,
                       QString::fromStdString(zone.name));
    });
}

} // namespace vantrix::view
