#pragma once

#include <boost/bind/bind.hpp>
#include <boost/function.hpp>
#include <boost/function_equal.hpp>
#include <boost/signals2.hpp>

#include <concepts>

namespace vantrix {

/// A slot that can be told apart from others: a function pointer, a boost::bind. (A lambda is not.)
template<typename Slot>
concept ComparableSlot = std::equality_comparable<Slot> || bool(boost::is_bind_expression<Slot>::value);

/// Finds a slot in a signal, to be given to the signal's disconnect(). Comparing the slot itself is ambiguous in C++20,
/// because boost::bind has an `==` of its own.
class SlotEqualTo
{
public:
    /// @param slot  referred to, not copied
    template<ComparableSlot Slot>
    explicit SlotEqualTo(Slot const& slot)
        : m_isEqual([&slot](boost::function_base const& function) { return function.contains(slot); })
    {}

    template<std::derived_from<boost::function_base> Function>
    friend bool operator==(Function const& function, SlotEqualTo const& other)
    {
        return other.m_isEqual(function);
    }

private:
    boost::function<bool(boost::function_base const&)> m_isEqual;
};

/// Connects a slot behind the present ones, after disconnecting every slot that equals it. Slots that cannot be
/// compared are never taken as equal.
template<typename Signal, typename Slot>
boost::signals2::connection connectOnce(Signal& signal, Slot const& slot)
{
    if constexpr (ComparableSlot<Slot>) {
        signal.disconnect(SlotEqualTo(slot));
    }
    return signal.connect(typename Signal::slot_function_type(slot));
}

} // namespace vantrix
