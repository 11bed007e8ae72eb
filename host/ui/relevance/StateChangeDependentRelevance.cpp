#include "ui/relevance/StateChangeDependentRelevance.h"

#include "api/VtxEnumerations.h"
#include "sdk/AppLock.h"
#include "sdk/StateChangeEventObservable.h"

namespace vantrix::sdk::ui::propertymanager {

StateChangeDependentRelevance::StateChangeDependentRelevance(Predicate predicate, std::string reason)
    : StateChangeDependentRelevance([](toolbox::StateChangeEventInterface const&) { return true; },
                                    std::move(predicate), std::move(reason))
{}

StateChangeDependentRelevance::StateChangeDependentRelevance(Filter filter, Predicate predicate, std::string reason)
    : m_filter(std::move(filter))
    , m_predicate(std::move(predicate))
    , m_connection(integration::StateChangeEventObservable::getInstance().connect(
          [this](toolbox::StateChangeEventInterface const& event) { stateChanged(event); }))
{
    setReason(std::move(reason));
}

bool StateChangeDependentRelevance::isRelevant() const
{
    AppLock const lock(false);
    return m_predicate();
}

void StateChangeDependentRelevance::stateChanged(toolbox::StateChangeEventInterface const& event)
{
    if (event.kind() == StateChange_Quit) {
        m_connection.disconnect();
    } else if (m_filter(event)) {
        emitRelevanceChangedSignal();
    }
}

} // namespace vantrix::sdk::ui::propertymanager
