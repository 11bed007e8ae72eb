#pragma once

#include "property/ConnectOnce.h"
#include "sdk/StateChangeNotifierInterface.h"

#include <memory>

namespace vantrix::sdk::integration {

/// The host's state changes as a signal. One for the process, fed by one listener at the host.
///
/// Slots are called in the order they were connected, on the thread of the user interface, once for each change. A slot
/// may connect and disconnect; one that throws does not keep the change from the slots behind it, and the exception is
/// shown in the host's status line.
class StateChangeEventObservable : public StateChangeNotifierInterface
{
public:
    /// Lives as long as the process.
    static StateChangeEventObservable& getInstance();

    /// Connects a slot `void(toolbox::StateChangeEventInterface const&)`; a slot that equals it is disconnected first.
    template<typename AnySlot>
    boost::signals2::connection connect(AnySlot const& slot)
    {
        if constexpr (ComparableSlot<AnySlot>) {
            disconnect(SlotEqualTo(slot));
        }
        return connectAtBack(slot);
    }

    boost::signals2::connection connectAtBack(Slot const& slot) override;

    /// Connects a slot that is told only of what can change the value of one style entry: a style change of that entry,
    /// or one that names none, and every change of another kind. It is told before the slots that hear of every change.
    boost::signals2::connection connectToStyleEntry(long entry, Slot const& slot);

    /// Tells all slots; what the host's notification does.
    void notify(toolbox::StateChangeEventInterface const& event);

private:
    struct Signals;

    StateChangeEventObservable();
    ~StateChangeEventObservable() override;

    void disconnect(SlotEqualTo const& slot);

    std::unique_ptr<Signals> m_signals;
};

} // namespace vantrix::sdk::integration
