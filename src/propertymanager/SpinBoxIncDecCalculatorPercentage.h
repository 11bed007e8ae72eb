#pragma once

#include "propertymanager/SpinBoxIncDecCalculatorBase.h"

namespace vantrix::sdk::ui::propertymanager {

/// Steps by a percentage of the value at hand, rounded to a number of decimals. A value so small that its step would
/// round to nothing moves by one in the last decimal, so that a spin box never sticks, at 0 least of all. Each of
/// several steps is a percentage of the value that the one before gave.
class SpinBoxIncDecCalculatorPercentage : public SpinBoxIncDecCalculatorBase
{
public:
    /// @param percent   of the value, above 0
    /// @param decimals  0 to 15
    SpinBoxIncDecCalculatorPercentage(double percent, int decimals);

    double increment(double current) override;
    double decrement(double current) override;

private:
    double stepped(double current, double direction) const;
    double rounded(double value) const;

    double m_percent;
    int m_decimals;
};

} // namespace vantrix::sdk::ui::propertymanager
