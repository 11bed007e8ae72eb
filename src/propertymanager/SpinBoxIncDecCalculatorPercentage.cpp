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
    return rounded(current + step(current));
}

double SpinBoxIncDecCalculatorPercentage::decrement(double current)
{
    return rounded(current - step(current));
}

double SpinBoxIncDecCalculatorPercentage::step(double current) const
{
    double const lastDecimal = std::pow(10.0, -m_decimals);
    return deltaFactor() * std::max(std::abs(current) * m_percent / 100.0, lastDecimal);
}

double SpinBoxIncDecCalculatorPercentage::rounded(double value) const
{
    double const scale = std::pow(10.0, m_decimals);
    double const result = std::round(value * scale) / scale;
    return std::isfinite(result) ? result : value;
}

} // namespace vantrix::sdk::ui::propertymanager
