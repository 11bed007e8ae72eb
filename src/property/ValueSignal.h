#pragma once

#include "property/UntypedValueSignal.h"

namespace vantrix {

/// A signal `void(T const&)`. Slots are called in the order in which they were connected; they may connect and
/// disconnect, the signal's own included. The mutex of the signal library guards it.
template<typename T>
class ValueSignal
{
public:
    /// Connects a slot behind the present ones, after disconnecting every slot that equals it.
    template<typename Slot>
    boost::signals2::connection connectOnce(Slot const& slot)
    {
        return vantrix::connectOnce(m_signal, TypedSlot<Slot>{slot});
    }

    /// Connects a slot that is called before those of connectOnce().
    boost::signals2::connection connectInFront(boost::function<void()> const& slot)
    {
        return m_signal.connectInFront(slot);
    }

    void operator()(T const& value) const { m_signal.emit(&value); }

    std::size_t slotCount() const { return m_signal.slotCount(); }

    /// How often the signal was sent, whether anybody listened or not.
    unsigned long emissionCount() const { return m_signal.emissionCount(); }

private:
    template<typename Slot>
    struct TypedSlot
    {
        void operator()(void const* value) const { slot(*static_cast<T const*>(value)); }

        friend bool operator==(TypedSlot const& a, TypedSlot const& b) requires ComparableSlot<Slot>
        {
            using boost::function_equal;
            return function_equal(a.slot, b.slot);
        }

        mutable Slot slot;
    };

    UntypedValueSignal m_signal;
};

} // namespace vantrix
