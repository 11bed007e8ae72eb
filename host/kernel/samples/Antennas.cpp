#include "kernel/samples/Samples.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantrix::kernel::samples {

/* The radiation patterns of rows of dipoles half a wave apart. */
void makeAntennas(DataSet& dataSet)
{
    constexpr long count = 1441;
    constexpr double pi = std::numbers::pi;
    setVariables(dataSet, {"Theta", "Field", "Gain"});
    for (const int elements : {2, 4, 8}) {
        Zone zone = Zone::ordered(std::to_string(elements) + " dipoles", count, 1, 1);
        fillNodal<3>(zone, [elements](long point) {
            const double degrees = 360.0 * static_cast<double>(point) / (count - 1);
            const double half = 0.5 * pi * std::cos(degrees * pi / 180.0);
            const double lowest = std::sin(half);
            const double field =
                std::abs(lowest) < 1e-9 ? 1.0 : std::abs(std::sin(elements * half) / (elements * lowest));
            return std::array<double, 3>{degrees, field, 20.0 * std::log10(std::max(field, 0.01))};
        });
        dataSet.addZone(std::move(zone));
    }
}

} // namespace vantrix::kernel::samples
