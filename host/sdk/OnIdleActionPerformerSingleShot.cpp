#include "sdk/OnIdleActionPerformerSingleShot.h"

#include <boost/make_shared.hpp>

namespace vantrix::sdk {

OnIdleActionPerformerSingleShot::OnIdleActionPerformerSingleShot(boost::function<void()> action)
    : m_request(boost::make_shared<IdleQueue::Request>())
{
    m_request->action = std::move(action);
}

void OnIdleActionPerformerSingleShot::enableNotification()
{
    IdleQueue::instance().enqueue(m_request);
}

void OnIdleActionPerformerSingleShot::disableNotification()
{
    m_request->armed = false;
}

void OnIdleActionPerformerSingleShot::performPending()
{
    IdleQueue::instance().flush();
}

} // namespace vantrix::sdk
