#pragma once

#include "propertymanager/SpinBoxIncDecCalculatorBase.h"
#include "propertymanager/UIStylePropertyAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

class AxisEditProperties;

/// Steps an end of the range of the axis that is being edited. The host decides what the next value is, at each of
/// several steps anew.
class AxisRangeSpinBoxIncDecCalculator : public SpinBoxIncDecCalculatorBase
{
public:
    /// @param autoAdjustToNiceValues  whether steps go to nice values only; both arguments outlive the calculator
    AxisRangeSpinBoxIncDecCalculator(AxisEditProperties const& properties,
                                     UIStylePropertyAbstract<bool> const& autoAdjustToNiceValues);

    double increment(double current) override;
    double decrement(double current) override;

private:
    double stepped(double current, bool up) const;

    AxisEditProperties const& m_properties;
    UIStylePropertyAbstract<bool> const& m_autoAdjustToNiceValues;
};

} // namespace vantrix::sdk::ui::propertymanager
