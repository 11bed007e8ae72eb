#include "kernel/NiceNumbers.h"

#include <cmath>

namespace vantrix::kernel {

namespace {

/* A range ends at a multiple that it passes by no more than this part of the spacing: rounding is no reason for
 * another. */
constexpr double slack = 1e-9;

} // namespace

double niceSpacing(double length, int count)
{
    const double exact = length / count;
    const double power = std::pow(10.0, std::floor(std::log10(exact)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (exact <= factor * power * (1.0 + slack)) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

NiceRange niceRange(double minimum, double maximum, int count)
{
    if (!(maximum > minimum)) {
        const double half = minimum == 0.0 ? 1.0 : std::abs(minimum) * 0.1;
        return niceRange(minimum - half, minimum + half, count);
    }
    const double spacing = niceSpacing(maximum - minimum, count);
    return {std::floor(minimum / spacing + slack) * spacing, std::ceil(maximum / spacing - slack) * spacing, spacing};
}

} // namespace vantrix::kernel
