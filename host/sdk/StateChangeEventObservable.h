#pragma once

#include "property/ConnectOnce.h"
#include "sdk/CallGuarded.h"
#include "toolbox/StateChangeEventInterface.h"

#include <boost/signals2.hpp>
#include <boost/signals2/dummy_mutex.hpp>
#include <boost/signals2/signal_type.hpp>

namespace vantrix::sdk::integration {

/// The host's state changes as a signal. One for the process, fed by one listener at the host.
///
/// Slots are called in the order they were connected, on the thread of the user interface, once for each change. A slot
/// may connect and disconnect; one that throws does not keep the change from the slots behind it, and the exception is
/// shown in the host's status line.
class StateChangeEventObservable
{
public:
    /// Calls every slot, whatever the ones before it do.
    struct CallEverySlot
    {
        using result_type = void;

        template<typename Iterator>
        void operator()(Iterator slot, Iterator end) const
        {
            for (; slot != end; ++slot) {
                callGuarded([&slot] { *slot; });
            }
        }
    };

    // Everything is called on one thread, so a mutex would only cost.
    using Signal =
        boost::signals2::signal_type<void(toolbox::StateChangeEventInterface const&),
                                     boost::signals2::keywords::combiner_type<CallEverySlot>,
                                     boost::signals2::keywords::mutex_type<boost::signals2::dummy_mutex>>::type;

    /// Lives as long as the process.
    static StateChangeEventObservable& getInstance();

    StateChangeEventObservable(StateChangeEventObservable const&) = delete;
    StateChangeEventObservable& operator=(StateChangeEventObservable const&) = delete;

    /// Connects a slot `void(toolbox::StateChangeEventInterface const&)`; a slot that equals it is disconnected first.
    template<typename Slot>
    boost::signals2::connection connect(Slot const& slot)
    {
        return connectOnce(m_signal, slot);
    }

    /// Tells all slots; what the host's notification does.
    void notify(toolbox::StateChangeEventInterface const& event) { m_signal(event); }

private:
    StateChangeEventObservable();
    ~StateChangeEventObservable() = default;

    Signal m_signal;
};

} // namespace vantrix::sdk::integration
