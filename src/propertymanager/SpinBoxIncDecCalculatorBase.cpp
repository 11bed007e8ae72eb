#include "propertymanager/SpinBoxIncDecCalculatorBase.h"

#include <cstdlib>

namespace vantrix::sdk::ui::propertymanager {

SpinBoxIncDecCalculatorBase::SpinBoxIncDecCalculatorBase(double baseDelta)
    : m_baseDelta(baseDelta)
{}

double SpinBoxIncDecCalculatorBase::afterSteps(double current, int steps)
{
    setDeltaFactor(std::abs(steps));
    double const next = steps < 0 ? decrement(current) : increment(current);
    setDeltaFactor(1);
    return next;
}

double SpinBoxIncDecCalculatorBase::increment(double current)
{
    return current + delta();
}

double SpinBoxIncDecCalculatorBase::decrement(double current)
{
    return current - delta();
}

double SpinBoxIncDecCalculatorBase::delta()
{
    return deltaFactor() * m_baseDelta;
}

} // namespace vantrix::sdk::ui::propertymanager
