#pragma once

#include "kernel/streamtrace/StreamtracePaths.h"
#include "view/ContourLegend.h"
#include "view/LineLegend.h"
#include "view/ScatterLegend.h"

#include <functional>
#include <vector>

namespace vantrix::view {

/*
 * The legends of a plot: of each contour group in use, of scatter symbols and of line maps. Those that the user has
 * placed lie where they were put; the others stand in a column at the right of the plot, and such that lie flat below
 * it.
 */
class PlotLegends
{
public:
    /* `frameHeight` in inches; `drawn` are the streamtraces of the plot, null for none. The style must outlive this. */
    PlotLegends(const Canvas& canvas, double frameHeight, const PlotStyle& style,
                const kernel::TracedStreamtraces* drawn);

    PlotLegends(const PlotLegends&) = delete;
    PlotLegends& operator=(const PlotLegends&) = delete;

    /* What the legends leave of a rectangle for the plot. */
    QRectF room(const QRectF& inside) const;

    /* `inside` as room() had it; `area` is the rectangle between the axes. */
    void paint(const QRectF& frame, const QRectF& inside, const QRectF& area) const;

private:
    struct Legend
    {
        PickObject_e object;
        bool isPlaced;
        bool isUpright;
        bool fillsColumn; /* as high as there is room */
        QSizeF size;
        std::function<QRectF(const QRectF& frame)> placedRect;
        std::function<void(const QRectF& rect)> paint;
    };

    template<class Kind>
    void add(PickObject_e object, const Kind& legend, bool isUpright, bool fillsColumn);
    double columnWidth(const QRectF& inside) const;
    double rowHeight(const QRectF& inside) const;
    void paint(const Legend& legend, const QRectF& rect) const;

    const Canvas& m_canvas;
    bool m_isThreeD;
    double m_gap;
    std::vector<ContourLegend> m_contours;
    ScatterLegend m_scatter;
    LineLegend m_lines;
    std::vector<Legend> m_legends;
};

} // namespace vantrix::view
