#pragma once

#include "view/AxisTicks.h"
#include "view/Camera3D.h"
#include "view/HitMap.h"
#include "view/PlotStyle.h"
#include "view/PolarScale.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <optional>
#include <vector>

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

    /* Of XY line plots with more than one axis of a kind, the others. */
    struct MoreScale
    {
        std::size_t kind; /* 0 X, 1 Y */
        int number;
        AxisScale scale;
    };
    std::vector<MoreScale> moreScales;
    std::optional<Camera3D> camera;  /* of 3D plots */
    std::optional<PolarScale> polar; /* of polar plots */
    QPointF polarCenter;
    double polarRadius = 0.0;

    /* Whether there is a view that can be changed: not where nothing but a notice is drawn, or in a sketch without
     * axes. */
    bool hasView() const { return camera || x || polar; }

    HitMap hits;

    /* Data coordinates in a 2D or line plot, of an XY line plot those of X1 and Y1, of a polar one theta and R; none
     * outside of its area. */
    std::optional<QPointF> dataAt(QPointF place) const;

    /* Where a point of the data is in the frame; in 2D and line plots its Z does not count. None where the plot has
     * nothing to measure by. */
    std::optional<QPointF> placeOf(const Point3& data) const;

    /* In a 3D plot, the point of the data that is seen at a place, in the plane parallel to the screen through another
     * one; none in other plots. */
    std::optional<Point3> dataAt(QPointF place, const Point3& inPlane) const;

    /* The same of a point of a line map that is shown over the X and Y axes of these numbers. */
    std::optional<QPointF> placeOf(QPointF data, int xAxis, int yAxis) const;

    /* The X (0) or Y (1) axis of a number: of one that is not shown, the first. Null where there are none to measure
     * by.
     */
    const AxisScale* scale(std::size_t kind, int number) const;

    /* Where on the picture of a 3D plot a place is: in picture widths from its middle, Y up. */
    QPointF onPicture(QPointF place) const;

private:
    Point3 toWorld(const Point3& data) const;
    QPointF inArea(double xFraction, double yFraction) const;
};

} // namespace vantrix::view
