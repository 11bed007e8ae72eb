#include "kernel/samples/Samples.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantrix::kernel::samples {

namespace {

constexpr long aroundCount = 121;
constexpr long radialCount = 49;
constexpr long spanCount = 33;
constexpr double height = 6.0;
constexpr double farRadius = 9.0;

double smoothStep(double t)
{
    t = std::clamp(t, 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

double towerRadius(double z)
{
    return 1.0 - 0.45 * smoothStep(z / height) + 0.06 * std::sin(2.0 * std::numbers::pi * z / 3.0);
}

struct Velocity
{
    double u, v, w;
};

/* Potential flow past a cylinder with a boundary layer over it. */
Velocity flowPastCylinder(double x, double y, double radius)
{
    const double r2 = x * x + y * y;
    const double a2 = radius * radius;
    const double layer = 1.0 - std::exp(-(std::sqrt(r2) - radius) / 0.15);
    return {layer * (1.0 - a2 * (x * x - y * y) / (r2 * r2)), -layer * 2.0 * a2 * x * y / (r2 * r2), 0.0};
}

/* A staggered row of Lamb-Oseen vortices that decay downstream; the phase turns along the tower. */
void addVortexStreet(Velocity& flow, double& pressure, double x, double y, double z, double wall)
{
    for (int n = 0; n < 7; ++n) {
        const double side = n % 2 == 0 ? 1.0 : -1.0;
        const double xc = 1.9 + 1.15 * n + 0.35 * std::sin(2.0 * std::numbers::pi * z / height);
        const double yc = side * (0.45 + 0.03 * n);
        const double dx = x - xc, dy = y - yc;
        const double core2 = 0.16 + 0.03 * n;
        const double r2 = dx * dx + dy * dy + 1e-12;
        const double strength =
            -side * 0.9 * std::exp(-0.12 * n) * (0.6 + 0.4 * std::cos(std::numbers::pi * z / height));
        const double swirl = strength * (1.0 - std::exp(-r2 / core2)) / r2 * wall;
        flow.u -= swirl * dy;
        flow.v += swirl * dx;
        flow.w += 0.25 * std::abs(strength) * std::exp(-r2 / core2) * wall;
        pressure -= 0.35 * strength * strength * std::exp(-r2 / core2);
    }
}

} // namespace

void makeFlow(DataSet& dataSet)
{
    setVariables(dataSet, {"X", "Y", "Z", "U", "V", "W", "Pressure", "Temperature"});
    Zone zone = Zone::ordered("Tower", aroundCount, radialCount, spanCount);
    fillNodal<8>(zone, [](long point) {
        const long i = point % aroundCount, j = point / aroundCount % radialCount,
                   k = point / (aroundCount * radialCount);
        const double turn =
            i == aroundCount - 1 ? 0.0 : 2.0 * std::numbers::pi * static_cast<double>(i) / (aroundCount - 1);
        const double z = height * static_cast<double>(k) / (spanCount - 1);
        const double radius = towerRadius(z);
        /* Rows crowd towards the wall, where the flow changes most. */
        const double t = static_cast<double>(j) / (radialCount - 1);
        const double r = radius + (farRadius - radius) * std::expm1(3.0 * t) / std::expm1(3.0);
        const double x = r * std::cos(turn), y = r * std::sin(turn);

        const double wall = 1.0 - std::exp(-(r - radius) / 0.3);
        Velocity flow = flowPastCylinder(x, y, radius);
        const double meander =
            0.35 * std::sin(1.36 * x - 2.0 * std::numbers::pi * z / height) * smoothStep((x - 1.0) / 3.0);
        const double width2 = 0.4 + 0.09 * std::max(x, 0.0);
        const double wake = smoothStep((x + 0.2) / 1.4) * std::exp(-(y - meander) * (y - meander) / width2);
        flow.u -= 0.75 * wall * wake * std::exp(-0.09 * std::max(x, 0.0));
        double pressure = 0.5 * (1.0 - flow.u * flow.u - flow.v * flow.v);
        addVortexStreet(flow, pressure, x, y, z, wall);
        const double temperature =
            293.0 + 80.0 * std::exp(-(r - radius) / 0.25) + 45.0 * wake * std::exp(-0.16 * std::max(x, 0.0));
        return std::array<double, 8>{x, y, z, flow.u, flow.v, flow.w, pressure, temperature};
    });
    dataSet.addZone(std::move(zone));
}

} // namespace vantrix::kernel::samples
