#pragma once

#include "property/ValidatorInterface.h"

namespace vantrix {

/// Accepts every value.
template<typename T>
class AllowAnyValueValidator : public virtual ValidatorInterface<T>
{
public:
    ValidationResult validate(T const&) const override { return {}; }
};

} // namespace vantrix
