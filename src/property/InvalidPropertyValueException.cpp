#include "property/InvalidPropertyValueException.h"

namespace vantrix {

InvalidPropertyValueException::InvalidPropertyValueException(std::string message, bool captureStackTrace)
    : ExceptionBase(std::move(message), captureStackTrace)
{}

InvalidPropertyValueException::~InvalidPropertyValueException() = default;

} // namespace vantrix
