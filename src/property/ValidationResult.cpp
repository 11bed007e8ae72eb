#include "property/ValidationResult.h"

#include <utility>

namespace vantrix {

void ValidationResult::setErrorString(std::string error)
{
    m_valid = false;
    m_error = std::move(error);
}

} // namespace vantrix
