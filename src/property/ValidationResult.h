#pragma once

#include <string>

namespace vantrix {

/// What a validator says of a value: valid, or invalid with a text that tells the user what would be right.
class ValidationResult
{
public:
    /// Valid, with an empty error text.
    ValidationResult() = default;

    /// Makes the result invalid, whatever the text.
    void setErrorString(std::string error);

    bool isValid() const { return m_valid; }
    std::string errorString() const { return m_error; }

private:
    bool m_valid = true;
    std::string m_error;
};

} // namespace vantrix
