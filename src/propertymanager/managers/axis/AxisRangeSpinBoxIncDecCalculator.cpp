#include "propertymanager/managers/axis/AxisRangeSpinBoxIncDecCalculator.h"

#include "api/VtxUtilAxis.h"
#include "propertymanager/managers/axis/AxisEditProperties.h"

namespace vantrix::sdk::ui::propertymanager {

AxisRangeSpinBoxIncDecCalculator::AxisRangeSpinBoxIncDecCalculator(
    AxisEditProperties const& properties, UIStylePropertyAbstract<bool> const& autoAdjustToNiceValues)
    : SpinBoxIncDecCalculatorBase(1.0)
    , m_properties(properties)
    , m_autoAdjustToNiceValues(autoAdjustToNiceValues)
{}

double AxisRangeSpinBoxIncDecCalculator::increment(double current)
{
    return stepped(current, true);
}

double AxisRangeSpinBoxIncDecCalculator::decrement(double current)
{
    return stepped(current, false);
}

double AxisRangeSpinBoxIncDecCalculator::stepped(double current, bool up) const
{
    for (int step = 0; step < deltaFactor(); ++step) {
        current = VtxUtilAxisGetNextRangeValue(m_properties.axisChar(), m_properties.axisNum(), current, up,
                                               m_autoAdjustToNiceValues.value());
    }
    return current;
}

} // namespace vantrix::sdk::ui::propertymanager
