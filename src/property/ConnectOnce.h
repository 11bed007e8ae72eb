#pragma once

#include <boost/bind/bind.hpp>
#include <boost/function/function_base.hpp>
#include <boost/signals2.hpp>

#include <concepts>

namespace vantrix {

namespace detail {

/// Finds a slot in a signal. Comparing the slot itself is ambiguous in C++20, because boost::bind has an `==` of its
/// own.
template<typename Slot>
struct SlotEqualTo
{
    Slot const& slot;

    template<std::derived_from<boost::function_base> Function>
    friend bool operator==(Function const& function, SlotEqualTo const& other)
    {
        return function.contains(other.slot);
    }
};

} // namespace detail

/// Connects a slot behind the present ones, after disconnecting every slot that equals it. Function pointers and
/// boost::bind can be compared; slots that cannot (lambdas) are never taken as equal.
template<typename Signal, typename Slot>
boost::signals2::connection connectOnce(Signal& signal, Slot const& slot)
{
    if constexpr (std::equality_comparable<Slot> || boost::is_bind_expression<Slot>::value) {
        signal.disconnect(detail::SlotEqualTo<Slot>{slot});
    }
    return signal.connect(slot);
}

} // namespace vantrix
