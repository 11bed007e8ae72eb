#pragma once

#include "property/ConnectOnce.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace vantrix::sdk::ui::propertymanager {

/// Whether a control means anything in the present state: an observable predicate, which dialogs compose and hand to
/// appliers (widgets) and to properties (their visible and sensitive state).
///
/// The signal carries no answer and may come more often than the answer changes: listeners ask isRelevant() again. A
/// relevance is shared as a pointer to const; a property that it was added to forgets it when it goes.
class RelevanceInterface
{
public:
    using RelevanceChangedSignal = boost::signals2::signal<void()>;

    RelevanceInterface();
    RelevanceInterface(RelevanceInterface const&) = delete;
    RelevanceInterface& operator=(RelevanceInterface const&) = delete;

    /// The present answer.
    virtual bool isRelevant() const = 0;

    /// Called right after a slot was connected to the relevance-changed signal. Does nothing.
    virtual void signalRelevanceChangedConnected() const;

    virtual ~RelevanceInterface();

    /// Why the control means nothing now, as a sentence for a tool tip; empty while it does, and when nobody said why.
    virtual std::string reason() const;

    /// What reason() tells while the relevance does not hold.
    void setReason(std::string reason) { m_reason = std::move(reason); }

    /// Connects a slot `void()`; a slot that equals it is disconnected first.
    template<typename Slot>
    boost::signals2::connection connectToRelevanceChangedSignal(Slot const& slot) const
    {
        boost::signals2::connection connection = connectOnce(m_relevanceChanged, slot);
        signalRelevanceChangedConnected();
        return connection;
    }

    /// Expires with the relevance.
    boost::weak_ptr<void const> lifeToken() const { return m_lifeToken; }

protected:
    void emitRelevanceChangedSignal() const { m_relevanceChanged(); }

private:
    mutable RelevanceChangedSignal m_relevanceChanged;
    std::string m_reason;
    boost::shared_ptr<void const> m_lifeToken;
};

} // namespace vantrix::sdk::ui::propertymanager
