#include "propertymanager/SpinBoxIncDecCalculatorIJKAbstract.h"

#include <algorithm>

namespace vantrix::sdk::ui::propertymanager {

SpinBoxIncDecCalculatorIJKAbstract::SpinBoxIncDecCalculatorIJKAbstract(int skip)
    : SpinBoxIncDecCalculatorBase(skip)
    , m_skip(skip)
{}

double SpinBoxIncDecCalculatorIJKAbstract::increment(double current)
{
    return clamped(current + m_skip * deltaFactor());
}

double SpinBoxIncDecCalculatorIJKAbstract::decrement(double current)
{
    return clamped(current - m_skip * deltaFactor());
}

double SpinBoxIncDecCalculatorIJKAbstract::clamped(double index) const
{
    return std::clamp(index, 1.0, std::max(1.0, static_cast<double>(getMaxIndex())));
}

} // namespace vantrix::sdk::ui::propertymanager
