#pragma once

#include "view/PlotStyle.h"

#include <QPointF>

#include <array>

class vtkCamera;

namespace vantrix::view {

using Point3 = std::array<double, 3>;

/* A box along the axes. */
struct Box3
{
    Point3 minimum{0.0, 0.0, 0.0};
    Point3 maximum{1.0, 1.0, 1.0};

    Point3 center() const;
    /* Corner 0 to 7; bit 0 chooses the maximum of X, bit 1 of Y, bit 2 of Z. */
    Point3 corner(int number) const;
};

/*
 * How a 3D plot is seen: which point of the world is where in the picture. The world is the data, each coordinate
 * multiplied by the frame's axis scale.
 */
class Camera3D
{
public:
    /*
     * `aspect` is the picture's width over its height. A view without a width shows the whole box and leaves a margin,
     * given in picture widths, on each side. The view's position is in world coordinates here.
     */
    Camera3D(const View3D& view, const Box3& box, double aspect, double margin = 0.0);

    /* Place in the picture, in picture widths from its middle; X to the right, Y up. */
    QPointF project(const Point3& world) const;

    /* The point at a place in the picture, in the plane parallel to the screen through another point. */
    Point3 unproject(QPointF place, const Point3& inPlane) const;

    /* How far a point is towards the eye; larger is nearer. */
    double nearness(const Point3& world) const;

    /* The unit vector from the plot to the eye. */
    const Point3& toward() const { return m_toward; }

    /* The unit vectors that point to the right and up in the picture. */
    const Point3& right() const { return m_right; }
    const Point3& up() const { return m_up; }

    /* The view with the width and the position that this camera has, as it is written to the style. */
    View3D view() const;

    /* The view that results from moving the picture by a part of its width and magnifying it about a place in it. */
    View3D moved(QPointF by) const;
    View3D magnified(double factor, QPointF about) const;

    /* The view seen from another direction, turning about the middle of the box. */
    View3D turned(double psi, double theta, double alpha) const;

    void apply(vtkCamera& camera) const;

private:
    /* Of the eye from the plane through the plot's middle, in picture widths. */
    double eyeDistance() const;
    double distance() const;
    Point3 target() const;
    double widthAt(const Point3& from) const;

    View3D m_view;
    Box3 m_box;
    double m_aspect;
    Point3 m_toward{};
    Point3 m_up{};
    Point3 m_right{};
};

} // namespace vantrix::view
