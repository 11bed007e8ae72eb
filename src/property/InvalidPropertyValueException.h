#pragma once

#include "property/ExceptionBase.h"

namespace vantrix {

/// A property was given a value that its validator, or the store behind it, does not accept. The message is meant for
/// the user. The property has kept its value.
class InvalidPropertyValueException : public virtual ExceptionBase
{
public:
    explicit InvalidPropertyValueException(std::string message, bool captureStackTrace = true);
    ~InvalidPropertyValueException() override;
};

} // namespace vantrix
