#pragma once

#include "view/AxisPainter.h"
#include "view/Camera3D.h"
#include "view/Canvas.h"
#include "view/PlotStyle.h"

#include <QRectF>

#include <array>

namespace vantrix::view {

/*
 * The axes of a 3D plot: on edges of the box around the data that are outlines of the box in the picture, so that
 * neither they nor their numbers ever lie in front of the data. X and Y run along the bottom, Z along a side.
 */
class AxisBoxPainter
{
public:
    /* An edge that carries an axis, in the painter's logical units; `outward` is a unit vector away from the box. */
    struct Edge
    {
        QPointF from; /* at the minimum of the axis */
        QPointF to;
        QPointF outward;
        int corner = 0;        /* of the box, at `from` */
        bool isUsable = false; /* false when the edge is seen end on */
    };

    /* `scale` are the factors from data to world coordinates. */
    AxisBoxPainter(const Canvas& canvas, const PlotMeasures& measures, const std::array<AxisStyle, 3>& axes,
                   const Camera3D& camera, const std::array<double, 3>& scale, const QRectF& picture);

    /* The far sides of the box with their grid lines; lies below the data. */
    void paintBack() const;

    /* Lines, ticks, numbers and titles; lies above the data. */
    void paintAxes() const;

    Edge edge(std::size_t axis) const;

private:
    QPointF place(const Point3& world) const;
    bool isFacing(std::size_t axis, bool atMaximum) const;
    AxisTicks ticks(std::size_t axis, const Edge& edge) const;

    const Canvas& m_canvas;
    PlotMeasures m_measures;
    std::array<AxisStyle, 3> m_axes;
    std::array<AxisScale, 3> m_scales;
    Camera3D m_camera;
    QRectF m_picture;
    Box3 m_box; /* in world coordinates */
    std::array<QFont, 3> m_labelFonts;
    std::array<QFont, 3> m_titleFonts;
};

} // namespace vantrix::view
