#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <QBasicTimer>
#include <QObject>

#include <vector>

namespace vantrix::sdk {

/// What waits for the next idle turn of the event loop. One queue for all idle action performers; it lives as long as
/// the application object.
class IdleQueue : public QObject
{
public:
    /// An action and whether it is waiting. Kept by its owner; the queue lets go of it when the owner does.
    struct Request
    {
        boost::function<void()> action;
        bool armed = false;
    };

    static IdleQueue& instance();

    /// Calls the action on the next idle turn; asking again before that changes nothing.
    void enqueue(boost::shared_ptr<Request> const& request);

    /// Does now what waits. What is enqueued meanwhile waits for the next turn.
    void flush();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    using QObject::QObject;

    QBasicTimer m_timer;
    std::vector<boost::weak_ptr<Request>> m_requests;
};

} // namespace vantrix::sdk
