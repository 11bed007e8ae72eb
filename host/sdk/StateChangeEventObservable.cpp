#include "sdk/StateChangeEventObservable.h"

#include "api/VtxUtilState.h"
#include "sdk/CallGuarded.h"
#include "toolbox/StateChangeEvent.h"

#include <boost/signals2/dummy_mutex.hpp>
#include <boost/signals2/signal_type.hpp>

namespace vantrix::sdk::integration {

namespace {

void passOn(VtxStateChangeHandle change, void* observable)
{
    callGuarded([change, observable] {
        static_cast<StateChangeEventObservable*>(observable)->notify(toolbox::StateChangeEvent(change));
    });
}

} // namespace

struct StateChangeEventObservable::Signal
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
    boost::signals2::signal_type<
        void(toolbox::StateChangeEventInterface const&), boost::signals2::keywords::combiner_type<CallEverySlot>,
        boost::signals2::keywords::mutex_type<boost::signals2::dummy_mutex>>::type signal;
};

StateChangeEventObservable& StateChangeEventObservable::getInstance()
{
    // Never destroyed: the host may still notify while the process ends.
    static auto* const instance = new StateChangeEventObservable();
    return *instance;
}

StateChangeEventObservable::StateChangeEventObservable()
    : m_signal(std::make_unique<Signal>())
{
    VtxUtilStateChangeAddListener(&passOn, this);
}

StateChangeEventObservable::~StateChangeEventObservable() = default;

void StateChangeEventObservable::notify(toolbox::StateChangeEventInterface const& event)
{
    m_signal->signal(event);
}

boost::signals2::connection StateChangeEventObservable::connectAtBack(Slot const& slot)
{
    return m_signal->signal.connect(slot);
}

void StateChangeEventObservable::disconnect(SlotEqualTo const& slot)
{
    m_signal->signal.disconnect(slot);
}

} // namespace vantrix::sdk::integration
