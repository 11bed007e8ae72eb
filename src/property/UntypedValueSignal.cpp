#include "property/UntypedValueSignal.h"

namespace vantrix {

boost::signals2::connection UntypedValueSignal::connect(slot_function_type const& slot)
{
    return m_signal.connect(slot);
}

boost::signals2::connection UntypedValueSignal::connectInFront(boost::function<void()> const& slot)
{
    // Slots of a group are called before those at the back, which are in none.
    return m_signal.connect(1, [slot](void const*) { slot(); });
}

void UntypedValueSignal::disconnect(SlotEqualTo const& slot)
{
    m_signal.disconnect(slot);
}

void UntypedValueSignal::emit(void const* value) const
{
    ++m_emissions;
    m_signal(value);
}

std::size_t UntypedValueSignal::slotCount() const
{
    return m_signal.num_slots();
}

} // namespace vantrix
