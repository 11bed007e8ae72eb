#pragma once

#include <exception>

namespace vantrix::sdk {

/// Shows the text of an exception that nobody caught in the host's status line.
void showUncaught(std::exception_ptr const& exception) noexcept;

/// Calls a function from where no exception may leave: a callback of the host, an event of Qt. An exception is shown
/// to the user and goes no further, so that the listeners behind are reached.
template<typename Function>
void callGuarded(Function&& function) noexcept
{
    try {
        function();
    } catch (...) {
        showUncaught(std::current_exception());
    }
}

} // namespace vantrix::sdk
