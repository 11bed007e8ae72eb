#include "sdk/StateChangeEventObservable.h"

#include "api/VtxUtilState.h"
#include "sdk/CallGuarded.h"
#include "toolbox/StateChangeEvent.h"

#include <boost/signals2/dummy_mutex.hpp>
#include <boost/signals2/signal_type.hpp>

#include <map>

namespace vantrix::sdk::integration {

namespace {

void passOn(VtxStateChangeHandle change, void* observable)
{
    callGuarded([change, observable] {
        static_cast<StateChangeEventObservable*>(observable)->notify(toolbox::StateChangeEvent(change));
    });
}

} // namespace

struct StateChangeEventObservable::Signals
{
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

    Signal every;
    // A slot may connect to a further entry while all are told: nothing that is there may move then.
    std::map<long, Signal> ofEntry;
};

StateChangeEventObservable& StateChangeEventObservable::getInstance()
{
    // Never destroyed: the host may still notify while the process ends.
    static auto* const instance = new StateChangeEventObservable();
    return *instance;
}

StateChangeEventObservable::StateChangeEventObservable()
    : m_signals(std::make_unique<Signals>())
{
    VtxUtilStateChangeAddListener(&passOn, this);
}

StateChangeEventObservable::~StateChangeEventObservable() = default;

void StateChangeEventObservable::notify(toolbox::StateChangeEventInterface const& event)
{
    long const entry = event.kind() == StateChange_Style ? event.styleEntry() : -1;
    if (entry < 0) {
        for (auto& [anyEntry, signal] : m_signals->ofEntry) {
            signal(event);
        }
    } else if (auto const listening = m_signals->ofEntry.find(entry); listening != m_signals->ofEntry.end()) {
        listening->second(event);
    }
    m_signals->every(event);
}

boost::signals2::connection StateChangeEventObservable::connectAtBack(Slot const& slot)
{
    return m_signals->every.connect(slot);
}

boost::signals2::connection StateChangeEventObservable::connectToStyleEntry(long entry, Slot const& slot)
{
    return m_signals->ofEntry[entry].connect(slot);
}

void StateChangeEventObservable::disconnect(SlotEqualTo const& slot)
{
    m_signals->every.disconnect(slot);
}

} // namespace vantrix::sdk::integration
