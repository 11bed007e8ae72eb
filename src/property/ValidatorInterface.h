#pragma once

#include "property/ValidationResult.h"

namespace vantrix {

/// Decides which values a property accepts. A virtual base of every validator.
template<typename T>
class ValidatorInterface
{
public:
    /// Never throws; a value that is not accepted gives an invalid result with a text for the user.
    virtual ValidationResult validate(T const& value) const = 0;

    virtual ~ValidatorInterface() = default;
};

} // namespace vantrix
