#pragma once

#include "property/ValidatorInterface.h"

#include <sstream>

namespace vantrix {

/// Accepts the numbers between two bounds; T is int, long or double.
///
/// The text of a rejected value names both bounds in the general notation with six significant digits.
template<typename T>
class BoundedValueValidator : public virtual ValidatorInterface<T>
{
public:
    /// Whether a bound itself is accepted. A number that is neither switches the check at that end off.
    enum class LowerBound : int
    {
        Inclusive = 0,
        Exclusive = 1
    };
    enum class UpperBound : int
    {
        Inclusive = 0,
        Exclusive = 1
    };

    BoundedValueValidator(T minimum, T maximum, LowerBound lowerBound = LowerBound::Inclusive,
                          UpperBound upperBound = UpperBound::Inclusive)
        : m_minimum(minimum)
        , m_maximum(maximum)
        , m_lowerBound(lowerBound)
        , m_upperBound(upperBound)
    {}

    /// NaN compares with nothing and is therefore accepted.
    ValidationResult validate(T const& value) const override
    {
        ValidationResult result;
        if (isBelow(value) || isAbove(value)) {
            std::ostringstream text;
            text << "The value must be greater than " << (m_lowerBound == LowerBound::Inclusive ? "or equal to " : "")
                 << m_minimum << " and less than " << (m_upperBound == UpperBound::Inclusive ? "or equal to " : "")
                 << m_maximum << ".";
            result.setErrorString(text.str());
        }
        return result;
    }

private:
    bool isBelow(T const& value) const
    {
        return (m_lowerBound == LowerBound::Inclusive && value < m_minimum) ||
               (m_lowerBound == LowerBound::Exclusive && value <= m_minimum);
    }

    bool isAbove(T const& value) const
    {
        return (m_upperBound == UpperBound::Inclusive && value > m_maximum) ||
               (m_upperBound == UpperBound::Exclusive && value >= m_maximum);
    }

    T m_minimum;
    T m_maximum;
    LowerBound m_lowerBound;
    UpperBound m_upperBound;
};

extern template class BoundedValueValidator<int>;
extern template class BoundedValueValidator<long>;
extern template class BoundedValueValidator<double>;

} // namespace vantrix
