#pragma once

#include "view/LegendBox.h"

#include <vector>

namespace vantrix::view {

/* The legend of scatter symbols: the symbol of each zone that has some, and the zone's name. */
class ScatterLegend
{
public:
    /* `frameHeight` in inches. The style must outlive this. */
    ScatterLegend(const Canvas& canvas, double frameHeight, const PlotStyle& style);

    /* False when it is off or there is nothing to show. */
    bool isShown() const { return style().isShown && !m_zones.empty(); }

    const LegendStyle& style() const { return m_box.style(); }

    /* Room that it takes, its box included, in logical units. */
    QSizeF size() const;

    QRectF placedRect(const QRectF& frame) const { return m_box.placedRect(frame, size()); }

    /* Rows that do not fit are left away. */
    void paint(const QRectF& rect) const;

private:
    double symbolWidth() const { return 1.6 * m_box.textHeight(); }

    const Canvas& m_canvas;
    double m_frameHeight;
    LegendBox m_box;
    std::vector<const ZoneStyle*> m_zones;
};

} // namespace vantrix::view
