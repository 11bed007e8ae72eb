#pragma once

#include "propertymanager/SpinBoxIncDecCalculatorBase.h"

namespace vantrix::sdk::ui::propertymanager {

/// Steps whole numbers within a range; a value between two whole numbers goes to the next one.
class SpinBoxIncDecCalculatorWholeNumberRange : public SpinBoxIncDecCalculatorBase
{
public:
    /// @param minimum, maximum  the ends, both allowed, minimum <= maximum
    /// @param step              above 0
    SpinBoxIncDecCalculatorWholeNumberRange(int minimum, int maximum, int step);

    double increment(double current) override;
    double decrement(double current) override;

private:
    int m_minimum;
    int m_maximum;
};

} // namespace vantrix::sdk::ui::propertymanager
