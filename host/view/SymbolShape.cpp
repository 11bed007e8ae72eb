#include "view/SymbolShape.h"

#include <cmath>
#include <numbers>

namespace vantrix::view {
namespace {

/* Corners on a circle, evenly spaced, the first at an angle in degrees. */
QPolygonF regular(int corners, double firstAngle, double radius = 0.5)
{
    QPolygonF polygon;
    for (int i = 0; i <= corners; ++i) {
        const double angle = (firstAngle + 360.0 * (i % corners) / corners) * std::numbers::pi / 180.0;
        polygon << QPointF(radius * std::cos(angle), radius * std::sin(angle));
    }
    return polygon;
}

} // namespace

QPolygonF symbolOutline(GeomShape_e shape)
{
    constexpr double pointRadius = 0.15;
    switch (shape) {
    case GeomShape_Square:
    case GeomShape_Cube:
        return regular(4, 45.0);
    case GeomShape_Delta:
        return regular(3, 90.0);
    case GeomShape_Gradient:
        return regular(3, 270.0);
    case GeomShape_RightTriangle:
        return regular(3, 0.0);
    case GeomShape_LeftTriangle:
        return regular(3, 180.0);
    case GeomShape_Diamond:
    case GeomShape_Octahedron:
        return regular(4, 90.0);
    case GeomShape_Circle:
    case GeomShape_Sphere:
        return regular(24, 0.0);
    case GeomShape_Point:
        return regular(8, 22.5, pointRadius);
    }
    return regular(24, 0.0);
}

bool isSolidSymbol(GeomShape_e shape)
{
    return shape == GeomShape_Cube || shape == GeomShape_Sphere || shape == GeomShape_Octahedron;
}

} // namespace vantrix::view
