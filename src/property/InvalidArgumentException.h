#pragma once

#include "property/ExceptionBase.h"

namespace vantrix {

/// A function was given an argument outside its documented range.
class InvalidArgumentException : public virtual ExceptionBase
{
public:
    explicit InvalidArgumentException(std::string message, bool captureStackTrace = true);
    ~InvalidArgumentException() override;
};

} // namespace vantrix
