#pragma once

#include "propertymanager/SpinBoxIncDecCalculatorBase.h"

namespace vantrix::sdk::ui::propertymanager {

/// Steps an index of an ordered zone, from 1 to the largest of its direction.
class SpinBoxIncDecCalculatorIJKAbstract : public virtual SpinBoxIncDecCalculatorBase
{
public:
    enum Plane_e
    {
        IPlane = 0,
        JPlane = 1,
        KPlane = 2
    };

    /// @param skip  how many indices a step goes
    explicit SpinBoxIncDecCalculatorIJKAbstract(int skip);

    /// The next index, no further than the first or the last. An index out of range comes back into it.
    double increment(double current) override;
    double decrement(double current) override;

    /// The largest index, at least 1.
    virtual int getMaxIndex() const = 0;

private:
    double clamped(double index) const;

    int m_skip;
};

} // namespace vantrix::sdk::ui::propertymanager
