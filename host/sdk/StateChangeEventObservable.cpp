#include "sdk/StateChangeEventObservable.h"

#include "api/VtxUtilState.h"
#include "toolbox/StateChangeEvent.h"

namespace vantrix::sdk::integration {

namespace {

void passOn(VtxStateChangeHandle change, void* observable)
{
    callGuarded([change, observable] {
        static_cast<StateChangeEventObservable*>(observable)->notify(toolbox::StateChangeEvent(change));
    });
}

} // namespace

StateChangeEventObservable& StateChangeEventObservable::getInstance()
{
    // Never destroyed: the host may still notify while the process ends.
    static auto* const instance = new StateChangeEventObservable();
    return *instance;
}

StateChangeEventObservable::StateChangeEventObservable()
{
    VtxUtilStateChangeAddListener(&passOn, this);
}

} // namespace vantrix::sdk::integration
