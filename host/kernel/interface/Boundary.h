#pragma once

#include "kernel/ApplicationLock.h"
#include "kernel/Kernel.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>

/* What every function of the interface is made with: nothing thrown gets past it, and a failure leaves its text. */
namespace vantrix::kernel::boundary {

/* Keeps the text of a failure; returns false. */
inline bool fail(std::string text)
{
    Kernel::instance().setLastError(std::move(text));
    return false;
}

/* Runs a function; an exception becomes the error text and `failure` the result. */
template<class Result, class Function>
Result guarded(Result failure, Function&& function) noexcept
{
    try {
        return function();
    } catch (const std::exception& exception) {
        fail(exception.what());
    } catch (...) {
        fail("Unknown error");
    }
    return failure;
}

template<class Function>
void guarded(Function&& function) noexcept
{
    guarded(false, [&] {
        function();
        return true;
    });
}

/* To be called first by whatever changes state. */
inline void expectLocked()
{
    Kernel::instance().lock().expectLocked();
}

/* A copy for VtxUtilStringDealloc(); null where memory is not to be had. */
inline char* copyString(const std::string& text)
{
    auto* copy = static_cast<char*>(std::malloc(text.size() + 1));
    return copy ? static_cast<char*>(std::memcpy(copy, text.c_str(), text.size() + 1)) : nullptr;
}

/* The same; null for an empty text, where the interface says that there is none. */
inline char* copyStringOrNull(const std::string& text)
{
    return text.empty() ? nullptr : copyString(text);
}

} // namespace vantrix::kernel::boundary
