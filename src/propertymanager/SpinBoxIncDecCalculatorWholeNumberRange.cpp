#include "propertymanager/SpinBoxIncDecCalculatorWholeNumberRange.h"

#include <algorithm>
#include <cmath>

namespace vantrix::sdk::ui::propertymanager {

SpinBoxIncDecCalculatorWholeNumberRange::SpinBoxIncDecCalculatorWholeNumberRange(int minimum, int maximum, int step)
    : SpinBoxIncDecCalculatorBase(step)
    , m_minimum(minimum)
    , m_maximum(maximum)
{}

double SpinBoxIncDecCalculatorWholeNumberRange::increment(double current)
{
    return std::clamp<double>(std::floor(current + delta()), m_minimum, m_maximum);
}

double SpinBoxIncDecCalculatorWholeNumberRange::decrement(double current)
{
    return std::clamp<double>(std::ceil(current - delta()), m_minimum, m_maximum);
}

} // namespace vantrix::sdk::ui::propertymanager
