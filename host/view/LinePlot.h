#pragma once

#include "view/Canvas.h"
#include "view/PlotStyle.h"

#include <QPainterPath>
#include <QRectF>

#include <functional>

namespace vantrix::kernel {
class DataSet;
}

namespace vantrix::view {

/* The line maps of an XY or polar line plot. */
class LinePlot
{
public:
    /* Where a point of a line map lies, in logical units; not finite for nowhere. */
    using Places = std::function<QPointF(double x, double y)>;

    /* `frameHeight` in inches. */
    LinePlot(const Canvas& canvas, double frameHeight, const kernel::DataSet& dataSet, const PlotStyle& style)
        : m_canvas(canvas)
        , m_frameHeight(frameHeight)
        , m_dataSet(dataSet)
        , m_style(style)
    {}

    /* Nothing is drawn outside of `area`, nor of `clip` where that is not empty. `placesOf` is asked once a line map.
     */
    void paint(const QRectF& area, const QPainterPath& clip,
               const std::function<Places(const LineMapStyle&)>& placesOf) const;

    /* The pen of a line map's line. */
    static QPen pen(const Canvas& canvas, double frameHeight, const LineMapStyle& map);

private:
    void paint(const LineMapStyle& map, const QRectF& area, const Places& places) const;

    const Canvas& m_canvas;
    double m_frameHeight;
    const kernel::DataSet& m_dataSet;
    const PlotStyle& m_style;
};

} // namespace vantrix::view
