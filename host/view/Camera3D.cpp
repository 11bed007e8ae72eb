#include "view/Camera3D.h"

#include "view/Angles.h"

#include <vtkCamera.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantrix::view {
namespace {

double dot(const Point3& a, const Point3& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Point3 cross(const Point3& a, const Point3& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/* a + factor * b */
Point3 plus(const Point3& a, double factor, const Point3& b)
{
    return {a[0] + factor * b[0], a[1] + factor * b[1], a[2] + factor * b[2]};
}

} // namespace

Point3 Box3::center() const
{
    return plus({0.5 * minimum[0], 0.5 * minimum[1], 0.5 * minimum[2]}, 0.5, maximum);
}

Point3 Box3::corner(int number) const
{
    return {(number & 1 ? maximum : minimum)[0], (number & 2 ? maximum : minimum)[1],
            (number & 4 ? maximum : minimum)[2]};
}

Camera3D::Camera3D(const View3D& view, const Box3& box, double aspect, double margin)
    : m_view(view)
    , m_box(box)
    , m_aspect(std::max(aspect, 1e-3))
{
    const double psi = radians(view.psi);
    const double theta = radians(view.theta);
    const double alpha = radians(view.alpha);
    m_toward = {std::sin(psi) * std::cos(theta), std::sin(psi) * std::sin(theta), std::cos(psi)};
    const Point3 level{-std::sin(theta), std::cos(theta), 0.0};
    const Point3 upright = cross(m_toward, level);
    m_right = plus({std::cos(alpha) * level[0], std::cos(alpha) * level[1], std::cos(alpha) * level[2]},
                   std::sin(alpha), upright);
    m_up = cross(m_toward, m_right);

    if (m_view.width > 0.0) {
        return;
    }
    // A margin that leaves nothing for the plot would turn the picture inside out.
    const double across = std::max(0.2, 1.0 - 2.0 * margin);
    const double up = std::max(0.2, 1.0 / m_aspect - 2.0 * margin);
    // A corner that lies `away` from the middle of the picture and `near` the eye is inside of its part of it when
    //     width >= near / eyeDistance() + 2 |away| / part
    // What is largest for the corners on either side decides on width and middle.
    double nearest = 0.0;
    std::array<double, 2> rightAndLeft{};
    std::array<double, 2> upAndDown{};
    const Point3 center = box.center();
    for (int i = 0; i < 8; ++i) {
        const Point3 from = plus(box.corner(i), -1.0, center);
        const double near = m_view.isPerspective ? dot(from, m_toward) / eyeDistance() : 0.0;
        const double x = 2.0 * dot(from, m_right) / across;
        const double y = 2.0 * dot(from, m_up) / up;
        nearest = std::max(nearest, near);
        rightAndLeft = {std::max(rightAndLeft[0], near + x), std::max(rightAndLeft[1], near - x)};
        upAndDown = {std::max(upAndDown[0], near + y), std::max(upAndDown[1], near - y)};
    }
    // The eye stays in front of the box, where it would see all of it from a corner, too.
    constexpr double room = 1.05;
    const double needed =
        std::max({0.5 * (rightAndLeft[0] + rightAndLeft[1]), 0.5 * (upAndDown[0] + upAndDown[1]), room * nearest});
    m_view.width = needed > 0.0 ? needed : 1.0;
    const Point3 middle = plus(plus(center, 0.25 * across * (rightAndLeft[0] - rightAndLeft[1]), m_right),
                               0.25 * up * (upAndDown[0] - upAndDown[1]), m_up);
    m_view.position = plus(middle, distance(), m_toward);
}

double Camera3D::eyeDistance() const
{
    const double angle = std::clamp(m_view.fieldOfView, 0.1, 179.0);
    return 1.0 / (2.0 * std::tan(radians(angle) / 2.0));
}

double Camera3D::distance() const
{
    return m_view.width * eyeDistance();
}

Point3 Camera3D::target() const
{
    return plus(m_view.position, -distance(), m_toward);
}

/* What the picture is wide in the plane of a point, which is given from the target. */
double Camera3D::widthAt(const Point3& from) const
{
    return m_view.isPerspective ? m_view.width * std::max(1e-6, (distance() - dot(from, m_toward)) / distance())
                                : m_view.width;
}

QPointF Camera3D::project(const Point3& world) const
{
    const Point3 from = plus(world, -1.0, target());
    const double size = widthAt(from);
    return {dot(from, m_right) / size, dot(from, m_up) / size};
}

Point3 Camera3D::unproject(QPointF place, const Point3& inPlane) const
{
    const Point3 from = plus(inPlane, -1.0, target());
    const double size = widthAt(from);
    const QPointF by = place - project(inPlane);
    return plus(plus(inPlane, by.x() * size, m_right), by.y() * size, m_up);
}

double Camera3D::nearness(const Point3& world) const
{
    return dot(world, m_toward);
}

View3D Camera3D::view() const
{
    return m_view;
}

View3D Camera3D::moved(QPointF by) const
{
    View3D view = m_view;
    view.position = plus(plus(view.position, -by.x() * view.width, m_right), -by.y() * view.width, m_up);
    return view;
}

View3D Camera3D::magnified(double factor, QPointF about) const
{
    // The plane through the target keeps its point under `about`.
    View3D view = m_view;
    view.width = m_view.width / factor;
    const double shift = m_view.width - view.width;
    const Point3 middle = plus(plus(target(), about.x() * shift, m_right), about.y() * shift, m_up);
    Camera3D moved = *this;
    moved.m_view.width = view.width;
    view.position = plus(middle, moved.distance(), m_toward);
    return view;
}

View3D Camera3D::turned(double psi, double theta, double alpha) const
{
    View3D direction = m_view;
    direction.psi = psi;
    direction.theta = theta;
    direction.alpha = alpha;
    const Camera3D turned(direction, m_box, m_aspect);
    const Point3 from = plus(target(), -1.0, m_box.center());
    Point3 middle = plus(m_box.center(), dot(from, m_right), turned.m_right);
    middle = plus(middle, dot(from, m_up), turned.m_up);
    direction.position = plus(middle, distance(), turned.m_toward);
    return direction;
}

void Camera3D::apply(vtkCamera& camera) const
{
    const Point3 focus = target();
    Point3 eye = m_view.position;
    if (!m_view.isPerspective) {
        // It may be anywhere on its line. What is behind it would be cut off, so it is put well in front of the box.
        const Point3 diagonal = plus(m_box.maximum, -1.0, m_box.minimum);
        const double size = std::sqrt(dot(diagonal, diagonal));
        const double center = dot(plus(m_box.center(), -1.0, focus), m_toward);
        eye = plus(focus, std::max(distance(), center + 5.0 * size), m_toward);
    }
    camera.SetFocalPoint(focus.data());
    camera.SetPosition(eye.data());
    camera.SetViewUp(m_up.data());
    camera.SetParallelProjection(!m_view.isPerspective);
    camera.SetParallelScale(0.5 * m_view.width / m_aspect);
    camera.SetUseHorizontalViewAngle(true);
    camera.SetViewAngle(std::clamp(m_view.fieldOfView, 1.0, 150.0));
}

} // namespace vantrix::view
