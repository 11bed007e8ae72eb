#pragma once

#include "view/LegendBox.h"

#include <QRectF>

#include <vector>

namespace vantrix::view {

/* The legend of line maps: a sample of each line with its symbol, and its name. */
class LineLegend
{
public:
    /* `frameHeight` in inches. The style must outlive this. */
    LineLegend(const Canvas& canvas, double frameHeight, const PlotStyle& style);

    /* False when it is off or there is nothing to show. */
    bool isShown() const;

    const LegendStyle& style() const { return m_box.style(); }

    /* Room that it takes, its box included, in logical units. */
    QSizeF size() const;

    /* Where it lies in the frame when the user has placed it. */
    QRectF placedRect(const QRectF& frame) const { return m_box.placedRect(frame, size()); }

    /* Rows that do not fit are left away. */
    void paint(const QRectF& rect) const;

private:
    double sampleWidth() const { return 2.4 * m_box.textHeight(); }

    const Canvas& m_canvas;
    double m_frameHeight;
    LegendBox m_box;
    std::vector<const LineMapStyle*> m_maps; /* those that draw something */
};

} // namespace vantrix::view
