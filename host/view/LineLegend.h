#pragma once

#include "view/Canvas.h"
#include "view/PlotStyle.h"

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

    /* Room that it takes, its box included, in logical units. */
    QSizeF size() const;

    /* Where it lies in the frame when the user has placed it. */
    QRectF placedRect(const QRectF& frame) const;

    /* Rows that do not fit are left away. */
    void paint(const QRectF& rect) const;

private:
    double margin() const;
    double sampleWidth() const;
    double rowHeight() const;

    const Canvas& m_canvas;
    double m_frameHeight;
    const PlotStyle& m_style;
    const LegendStyle& m_legend;
    std::vector<const LineMapStyle*> m_maps; /* those that draw something */
    QFont m_font;
    double m_textHeight;
};

} // namespace vantrix::view
