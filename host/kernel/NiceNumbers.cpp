#include "kernel/NiceNumbers.h"

#include <algorithm>
#include <array>
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
    return {withoutRounding(std::floor(minimum / spacing + slack) * spacing, spacing),
            withoutRounding(std::ceil(maximum / spacing - slack) * spacing, spacing), spacing};
}

NiceRange niceDecades(double minimum, double maximum)
{
    const double low = std::floor(std::log10(minimum) + slack);
    const double high = std::ceil(std::log10(maximum) - slack);
    return {std::pow(10.0, low), std::pow(10.0, high > low ? high : low + 1.0), 10.0};
}

double nextNiceValue(double value, double spacing, bool up)
{
    const double position = value / spacing;
    const double next = up ? std::floor(position + slack) + 1.0 : std::ceil(position - slack) - 1.0;
    return withoutRounding(next * spacing, spacing);
}

double nextNiceFactor(double value, bool up)
{
    const double power = std::floor(std::log10(value) + slack);
    const double mantissa = value / std::pow(10.0, power);
    constexpr std::array factors{0.5, 1.0, 2.0, 5.0, 10.0};
    const double factor =
        up ? *std::find_if(factors.begin(), factors.end(), [&](double each) { return each > mantissa * (1.0 + slack); })
           : *std::find_if(factors.rbegin(), factors.rend(),
                           [&](double each) { return each < mantissa * (1.0 - slack); });
    return withoutRounding(factor * std::pow(10.0, power), std::pow(10.0, power - 1.0));
}

double withoutRounding(double value, double step)
{
    constexpr int moreDecimals = 6;
    const double decimals = std::ceil(-std::log10(step)) + moreDecimals;
    const double scale = std::pow(10.0, std::abs(decimals));
    const double rounded = decimals < 0.0 ? std::round(value / scale) * scale : std::round(value * scale) / scale;
    /* Beyond these every number is whole, and powers of ten are not exact. */
    return std::abs(decimals) <= 22.0 && std::isfinite(rounded) ? rounded : value;
}

} // namespace vantrix::kernel
