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
    return VtxUtilAxisGetNextRangeValue(m_properties.axisChar(), m_properties.axisNum(), current, true,
                                        m_autoAdjustToNiceValues.value());
}

double AxisRangeSpinBoxIncDecCalculator::decrement(double current)
{
    return VtxUtilAxisGetNextRangeValue(m_properties.axisChar(), m_properties.axisNum(), current, false,
                                        m_autoAdjustToNiceValues.value());
}

} // namespace vantrix::sdk::ui::propertymanager
