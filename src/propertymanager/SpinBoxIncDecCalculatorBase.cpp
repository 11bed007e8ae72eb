#include "propertymanager/SpinBoxIncDecCalculatorBase.h"

namespace vantrix::sdk::ui::propertymanager {

SpinBoxIncDecCalculatorBase::SpinBoxIncDecCalculatorBase(double baseDelta)
    : m_baseDelta(baseDelta)
{}

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
    return m_baseDelta;
}

} // namespace vantrix::sdk::ui::propertymanager
