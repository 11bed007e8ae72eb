#pragma once

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace vantrix {

/// Root of the exceptions that carry a text for the user.
class ExceptionBase : public virtual std::exception
{
public:
    /// @param message            what went wrong and what would be right, as a whole sentence
    /// @param captureStackTrace  keep the call stack of the construction for printStackTrace()
    ///
    /// An exception that is being handled while this one is made becomes its cause.
    ExceptionBase(std::string message, bool captureStackTrace);

    ~ExceptionBase() override;

    /// The message; the pointer is valid as long as this object.
    char const* what() const noexcept override;

    /// The exception that led to this one, or null.
    virtual std::exception_ptr cause() const;

    virtual std::string message() const;

    /// Prints the message and the captured call stack to the standard error output.
    virtual void printStackTrace() const;

    /// The same to an open file. Without a captured stack only the message is printed.
    virtual void printStackTrace(FILE* file) const;

private:
    std::string m_message;
    std::exception_ptr m_cause;
    std::vector<void*> m_stack;
};

} // namespace vantrix
