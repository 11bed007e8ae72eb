#pragma once

#include "view/AxisTicks.h"
#include "view/Canvas.h"
#include "view/PlotStyle.h"

#include <QRectF>

#include <array>

namespace vantrix::view {

/* Sizes of texts and marks of a plot, in inches; they follow the frame's size. */
struct PlotMeasures
{
    double label;
    double title;
    double tick;
    double gap;
    double line;

    static PlotMeasures forFrame(QSizeF inches);
};

/* The colour of a grid line: fainter than what is plotted. */
QColor faint(const QColor& color);

/*
 * The axes around the rectangle of a 2D or line plot: lines, ticks, numbers, titles, grid lines. What it draws outside
 * of the rectangle never overlaps itself, and margins() says how much room that takes.
 */
class AxisPainter
{
public:
    AxisPainter(const Canvas& canvas, const PlotMeasures& measures, const AxisStyle& x, const AxisStyle& y);

    /*
     * The part of `viewport` that is left for the plot when axes, numbers and titles are to fit into `room` as well.
     * `ratio` is the plot's height over its width, 0 for any.
     */
    QRectF plotArea(const QRectF& room, const QRectF& viewport, double ratio) const;

    /* Grid lines lie below the data, everything else above. */
    void paintGrid(const QRectF& area) const;
    void paintAxes(const QRectF& area) const;

    const AxisScale& xScale() const { return m_scales[0]; }
    const AxisScale& yScale() const { return m_scales[1]; }

private:
    AxisTicks ticks(std::size_t axis, const QRectF& area) const;
    double labelWidth(std::size_t axis, const AxisTicks& ticks) const;
    QMarginsF margins(const QRectF& area) const;

    const Canvas& m_canvas;
    PlotMeasures m_measures;
    std::array<AxisStyle, 2> m_styles;
    std::array<AxisScale, 2> m_scales;
    std::array<QFont, 2> m_labelFonts;
    std::array<QFont, 2> m_titleFonts;
};

} // namespace vantrix::view
