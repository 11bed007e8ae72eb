#pragma once

#include "view/AxisTicks.h"
#include "view/Camera3D.h"
#include "view/PlotStyle.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <optional>

namespace vantrix::view {

/* Where a frame's plot was painted, and what it showed there. Places are in inches from the frame's upper left corner.
 */
class FramePlot
{
public:
    PlotStyle style;
    QSizeF frameSize;
    QRectF area;                /* between the axes; of a 3D plot the whole picture */
    std::optional<AxisScale> x; /* of 2D and line plots with axes to measure by */
    std::optional<AxisScale> y;
    std::optional<Camera3D> camera; /* of 3D plots */

    /* Data coordinates in a 2D or line plot; none outside of its area. */
    std::optional<QPointF> dataAt(QPointF place) const;

    /* Where on the picture of a 3D plot a place is: in picture widths from its middle, Y up. */
    QPointF onPicture(QPointF place) const;
};

} // namespace vantrix::view
