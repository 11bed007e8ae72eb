#pragma once

#include <stdexcept>

namespace vantrix::kernel {

/* An action on data that cannot be done. The text says what, where, and what would be right; nothing has changed. */
class DataError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/* The user stopped an action under way. */
class ActionCancelled : public DataError
{
public:
    ActionCancelled()
        : DataError("Stopped at your request; nothing was changed.")
    {}
    using DataError::DataError;
};

} // namespace vantrix::kernel
