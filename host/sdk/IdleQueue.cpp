#include "sdk/IdleQueue.h"

#include "sdk/CallGuarded.h"

#include <QCoreApplication>
#include <QPointer>

namespace vantrix::sdk {

IdleQueue& IdleQueue::instance()
{
    static QPointer<IdleQueue> queue;
    if (queue.isNull()) {
        queue = new IdleQueue(QCoreApplication::instance());
    }
    return *queue;
}

void IdleQueue::enqueue(boost::shared_ptr<Request> const& request)
{
    if (request->armed) {
        return;
    }
    request->armed = true;
    m_requests.push_back(request);
    if (!m_timer.isActive()) {
        m_timer.start(0, this);
    }
}

void IdleQueue::flush()
{
    m_timer.stop();
    std::vector<boost::weak_ptr<Request>> requests;
    requests.swap(m_requests);
    for (boost::weak_ptr<Request> const& waiting : requests) {
        // Held here so that an action that destroys its owner is not destroyed while it runs.
        boost::shared_ptr<Request> const request = waiting.lock();
        if (request && request->armed) {
            request->armed = false;
            callGuarded(request->action);
        }
    }
}

void IdleQueue::timerEvent(QTimerEvent*)
{
    flush();
}

} // namespace vantrix::sdk
