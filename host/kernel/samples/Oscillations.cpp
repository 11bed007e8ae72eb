#include "kernel/samples/Samples.h"

#include <cmath>

namespace vantrix::kernel::samples {

void makeOscillations(DataSet& dataSet)
{
    constexpr long count = 401;
    constexpr double duration = 10.0, frequency = 4.0;
    setVariables(dataSet, {"Time", "Displacement", "Velocity", "Energy"});
    const std::pair<const char*, double> zones[] = {
        {"Damping 0.02", 0.02}, {"Damping 0.08", 0.08}, {"Damping 0.2", 0.2}, {"Damping 0.5", 0.5}};
    for (const auto& [name, damping] : zones) {
        Zone zone = Zone::ordered(name, count, 1, 1);
        /* The free oscillation that starts at rest from a displacement of 1. */
        fillNodal<4>(zone, [ratio = damping](long point) {
            const double t = duration * static_cast<double>(point) / (count - 1);
            const double decay = ratio * frequency, turn = frequency * std::sqrt(1.0 - ratio * ratio);
            const double envelope = std::exp(-decay * t);
            const double x = envelope * (std::cos(turn * t) + decay / turn * std::sin(turn * t));
            const double v = -envelope * frequency * frequency / turn * std::sin(turn * t);
            return std::array<double, 4>{t, x, v, 0.5 * v * v + 0.5 * frequency * frequency * x * x};
        });
        dataSet.addZone(std::move(zone));
    }
}

} // namespace vantrix::kernel::samples
