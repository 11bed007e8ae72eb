#pragma once

#include "view/AxisLinePainter.h"
#include "view/Canvas.h"
#include "view/PlotStyle.h"

#include <QRectF>

#include <vector>

namespace vantrix::view {

/*
 * The axes of a 2D plot, an XY line plot (with up to five of each kind) or a sketch: the area that they span, grid
 * lines, and each axis at its own place. Axes at the same border of the area stand beside each other, so that nothing
 * overlaps, and the area gives way where numbers and titles would be cut off.
 */
class AxisPainter
{
public:
    /* `frameHeight` in inches. The style must outlive this. */
    AxisPainter(const Canvas& canvas, double frameHeight, const PlotStyle& style);

    /*
     * Places the plot: at the viewport in `frame`, smaller where axes, numbers and titles would not fit into `room`.
     * Axes that depend on each other keep their proportion. To be called before anything is painted.
     */
    QRectF layOut(const QRectF& room, const QRectF& frame);

    /* The area's fill and the grid lines that lie below the data. */
    void paintBehind() const;

    /* Everything else; lies above the data. */
    void paintFront() const;

    const QRectF& area() const { return m_area; }

    /* Valid after layOut(), which may widen ranges. Axis 1 stands in for one that the plot does not have. */
    const AxisScale& xScale(int number = 1) const { return scale(0, number); }
    const AxisScale& yScale(int number = 1) const { return scale(1, number); }

private:
    struct Axis
    {
        std::size_t kind; /* 0 X, 1 Y */
        int number;
        const AxisStyle* style;
        AxisScale scale;
    };
    struct Line
    {
        const Axis* axis;
        AxisLinePainter painter;
        bool isAtBorder;
    };

    const AxisScale& scale(std::size_t kind, int number) const;
    double unitRatio() const;
    void keepProportion(const QRectF& room);
    double place(const Axis& axis) const;
    AxisPath path(std::size_t kind, double across, bool isOutwardUp) const;
    std::vector<Line> lines() const;
    QRectF bounds() const;
    AxisTicks ticks(const Axis& axis) const;
    void paintFill() const;
    void paintGrid(bool isLast) const;
    void paintGridLines(const Axis& axis, const GridLineStyle& grid, const std::vector<Tick>& ticks) const;
    void paintPreciseGrid() const;

    const Canvas& m_canvas;
    double m_frameHeight;
    const PlotStyle& m_style;
    std::vector<Axis> m_axes;
    QRectF m_area;
    QRectF m_viewport;
};

} // namespace vantrix::view
