#include "propertymanager/SpinBoxIncDecCalculatorPercentage.h"

#include <algorithm>
#include <cmath>

namespace vantrix::sdk::ui::propertymanager {

SpinBoxIncDecCalculatorPercentage::SpinBoxIncDecCalculatorPercentage(double percent, int decimals)
    : SpinBoxIncDecCalculatorBase(percent)
    , m_percent(percent)
    , m_decimals(decimals)
{}

double SpinBoxIncDecCalculatorPercentage::increment(double current)
{
    return stepped(current, 1.0);
}

double SpinBoxIncDecCalculatorPercentage::decrement(double current)
{
    return stepped(current, -1.0);
}

double SpinBoxIncDecCalculatorPercentage::stepped(double current, double direction) const
{
    double const lastDecimal = std::pow(10.0, -m_decimals);
    for (int step = 0; step < deltaFactor(); ++step) {
        current = rounded(current + direction * std::max(std::abs(current) * m_percent / 100.0, lastDecimal));
    }
    return current;
}

double SpinBoxIncDecCalculatorPercentage::rounded(double value) const
{
    double const scale = std::pow(10.0, m_decimals);
    double const result = std::round(value * scale) / scale;
    return std::isfinite(result) ? result : value;
}

} // namespace vantrix::sdk::ui::propertymanager
