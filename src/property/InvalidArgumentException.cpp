#include "property/InvalidArgumentException.h"

namespace vantrix {

InvalidArgumentException::InvalidArgumentException(std::string message, bool captureStackTrace)
    : ExceptionBase(std::move(message), captureStackTrace)
{}

InvalidArgumentException::~InvalidArgumentException() = default;

} // namespace vantrix
