#pragma once

#include "sdk/IdleQueue.h"

namespace vantrix::sdk {

/// Performs an action once on the next idle turn of the event loop, however often it was asked to before that turn.
/// Destroying the performer, also from within the action, withdraws what waits. An action that throws is reported in
/// the host's status line.
class OnIdleActionPerformerSingleShot
{
public:
    explicit OnIdleActionPerformerSingleShot(boost::function<void()> action);

    /// Asks for the action on the next idle turn. From within the action: on the turn after.
    void enableNotification();

    /// Withdraws what was asked for.
    void disableNotification();

    bool isNotificationEnabled() const { return m_request->armed; }

    /// Does at once what all performers wait to do; what that asks for waits for the next turn.
    static void performPending();

private:
    boost::shared_ptr<IdleQueue::Request> m_request;
};

} // namespace vantrix::sdk
