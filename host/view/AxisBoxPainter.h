#pragma once

#include "view/AxisLinePainter.h"
#include "view/Camera3D.h"
#include "view/Canvas.h"
#include "view/PlotStyle.h"

#include <QRectF>

#include <array>
#include <vector>

namespace vantrix::view {

/*
 * The axes of a 3D plot: on edges of the box around the data. Where the plot chooses, they are outlines of the box in
 * the picture, so that neither they nor their numbers ever lie in front of the data: X and Y along the bottom, Z along
 * a side.
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

    /* The box, in world coordinates: the ranges of the axes and the padding around them. */
    static Box3 box(const PlotStyle& style);

    /* `frameHeight` in inches. The style must outlive this. */
    AxisBoxPainter(const Canvas& canvas, double frameHeight, const PlotStyle& style, const Camera3D& camera,
                   const QRectF& picture);

    /* The far sides of the box with their grid lines; lies below the data. */
    void paintBack() const;

    /* Lines, ticks, numbers and titles; lies above the data. */
    void paintAxes() const;

    /* Everything that paintAxes() draws lies inside. */
    QRectF bounds() const;

    Edge edge(std::size_t axis) const;

private:
    struct Side
    {
        std::size_t normal; /* the axis that the side is perpendicular to */
        double place;       /* on that axis */
        std::size_t first;
        std::size_t second;
    };

    QPointF place(const Point3& world) const;
    bool isFacing(std::size_t axis, bool atMaximum) const;
    Edge edgeAt(std::size_t axis, int corner) const;
    int oppositeCorner(std::size_t axis, int corner) const;
    AxisPath path(std::size_t axis, const Edge& edge) const;
    std::vector<AxisLinePainter> lines() const;
    std::vector<Side> farSides() const;
    QColor fill(const Side& side) const;
    void paintGrid(const Side& side, bool isLast) const;
    void paintTripod() const;

    const Canvas& m_canvas;
    double m_frameHeight;
    const PlotStyle& m_style;
    Camera3D m_camera;
    QRectF m_picture;
    Box3 m_box;
    std::array<AxisScale, 3> m_scales; /* of the box, padding included */
};

} // namespace vantrix::view
