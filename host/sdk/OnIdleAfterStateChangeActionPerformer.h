#pragma once

#include "sdk/OnIdleActionPerformerSingleShot.h"

#include "toolbox/StateChangeEventInterface.h"

#include <boost/signals2.hpp>

namespace vantrix::sdk {

/// Performs an action once on the idle turn after a burst of state changes, when a predicate held for any of them.
/// Stops when it is destroyed and when the application ends.
class OnIdleAfterStateChangeActionPerformer
{
public:
    using Predicate = boost::function<bool(toolbox::StateChangeEventInterface const&)>;

    OnIdleAfterStateChangeActionPerformer(Predicate predicate, boost::function<void()> action);
    OnIdleAfterStateChangeActionPerformer(OnIdleAfterStateChangeActionPerformer const&) = delete;
    OnIdleAfterStateChangeActionPerformer& operator=(OnIdleAfterStateChangeActionPerformer const&) = delete;

private:
    void stateChanged(toolbox::StateChangeEventInterface const& event);

    Predicate m_predicate;
    OnIdleActionPerformerSingleShot m_performer;
    boost::signals2::scoped_connection m_connection;
};

} // namespace vantrix::sdk
