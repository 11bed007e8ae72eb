#include "property/ExceptionBase.h"

#include <array>
#include <cstdlib>
#include <execinfo.h>
#include <memory>

namespace vantrix {

namespace {

std::vector<void*> captureStack()
{
    std::array<void*, 64> frames{};
    int const count = backtrace(frames.data(), static_cast<int>(frames.size()));
    return {frames.begin(), frames.begin() + count};
}

} // namespace

ExceptionBase::ExceptionBase(std::string message, bool captureStackTrace)
    : m_message(std::move(message))
    , m_cause(std::current_exception())
{
    if (captureStackTrace) {
        m_stack = captureStack();
    }
}

ExceptionBase::~ExceptionBase() = default;

char const* ExceptionBase::what() const noexcept
{
    return m_message.c_str();
}

std::exception_ptr ExceptionBase::cause() const
{
    return m_cause;
}

std::string ExceptionBase::message() const
{
    return m_message;
}

void ExceptionBase::printStackTrace() const
{
    printStackTrace(stderr);
}

void ExceptionBase::printStackTrace(FILE* file) const
{
    std::fprintf(file, "%s\n", m_message.c_str());
    int const depth = static_cast<int>(m_stack.size());
    std::unique_ptr<char*, decltype(&std::free)> const names(backtrace_symbols(m_stack.data(), depth), &std::free);
    for (int frame = 0; names && frame < depth; ++frame) {
        std::fprintf(file, "  at %s\n", names.get()[frame]);
    }
}

} // namespace vantrix
