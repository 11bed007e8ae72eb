#pragma once

#include "view/AxisPainter.h"
#include "view/AxisTicks.h"
#include "view/Canvas.h"
#include "view/PlotStyle.h"

namespace vantrix::kernel {
class DataSet;
}

namespace vantrix::view {

/* The curves of an XY line plot and their legend. */
class LinePlot
{
public:
    LinePlot(const kernel::DataSet& dataSet, const PlotStyle& style)
        : m_dataSet(dataSet)
        , m_style(style)
    {}

    void paintCurves(const Canvas& canvas, const QRectF& area, const AxisScale& x, const AxisScale& y,
                     double frameHeight) const;

    /* Width of the legend in logical units; 0 when there is nothing to tell apart. */
    double legendWidth(const Canvas& canvas, const PlotMeasures& measures) const;
    void paintLegend(const Canvas& canvas, const PlotMeasures& measures, const QRectF& column) const;

private:
    const kernel::DataSet& m_dataSet;
    const PlotStyle& m_style;
};

} // namespace vantrix::view
