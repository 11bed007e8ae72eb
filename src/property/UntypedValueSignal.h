#pragma once

#include "property/ConnectOnce.h"

#include <cstddef>

namespace vantrix {

/// What every ValueSignal is inside: a signal whose slots take the address of a value. One type serves all values, so
/// that the signal library is compiled once and not again for each type.
class UntypedValueSignal
{
public:
    using slot_function_type = boost::function<void(void const* value)>;

    boost::signals2::connection connect(slot_function_type const& slot);
    boost::signals2::connection connectInFront(boost::function<void()> const& slot);
    void disconnect(SlotEqualTo const& slot);
    void emit(void const* value) const;
    std::size_t slotCount() const;
    unsigned long emissionCount() const { return m_emissions; }

private:
    mutable unsigned long m_emissions = 0;
    boost::signals2::signal<void(void const*)> m_signal;
};

} // namespace vantrix
