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
    QPainter& painter = m_canvas.painter;
    painter.save();
    m_box.paintBox(rect);
    painter.setClipRect(rect.adjusted(-1.0, -1.0, 1.0, 1.0), Qt::IntersectClip);
    const double left = rect.left() + m_box.margin();
    double y = rect.top() + m_box.margin() + 0.5 * m_box.rowHeight();
    for (const ZoneStyle* zone : m_zones) {
        if (y + 0.5 * m_box.textHeight() > rect.bottom() + 1.0) {
            break;
        }
        SymbolStyle symbol = zone->scatter.symbol();
        // A symbol sized by its variable has no size of its own, and a large one must not cover other rows.
        const double row = 90.0 * m_box.textHeight() / (m_frameHeight * m_canvas.inch);
        symbol.size = zone->scatter.isSizedByVariable ? row : std::min(symbol.size, row);
        MarkSymbol(m_canvas, m_frameHeight, symbol).draw({left + 0.5 * symbolWidth(), y});
        m_box.drawText({left + symbolWidth() + m_box.gap(), y}, Qt::AlignLeft | Qt::AlignVCenter,
                       QString::fromStdString(zone->name));
        y += m_box.rowHeight();
    }
    painter.restore();
}

} // namespace vantrix::view
