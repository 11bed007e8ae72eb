#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include "api/VtxEnumerations.h"
#include "sdk/StateChangeEventObservable.h"

namespace vantrix::sdk {

OnIdleAfterStateChangeActionPerformer::OnIdleAfterStateChangeActionPerformer(Predicate predicate,
                                                                             boost::function<void()> action)
    : m_predicate(std::move(predicate))
    , m_performer(std::move(action))
    , m_connection(integration::StateChangeEventObservable::getInstance().connect(
          boost::bind(&OnIdleAfterStateChangeActionPerformer::stateChanged, this, boost::placeholders::_1)))
{}

void OnIdleAfterStateChangeActionPerformer::stateChanged(toolbox::StateChangeEventInterface const& event)
{
    if (event.kind() == StateChange_Quit) {
        m_performer.disableNotification();
        m_connection.disconnect();
    } else if (m_predicate(event)) {
        m_performer.enableNotification();
    }
}

} // namespace vantrix::sdk
