#pragma once

#include "property/ConnectOnce.h"
#include "propertymanager/RelevanceInterface.h"

namespace vantrix::sdk::ui::propertymanager {

/// The visible and the sensitive (enabled) state of something that a dialog shows. Each holds while all relevances that
/// were added for it hold; without any it holds. The relevances are not owned.
class UIPropertyInterface
{
public:
    using StateChangedSignal = boost::signals2::signal<void()>;

    /// Adding a relevance again, and removing one that was not added, does nothing.
    virtual void addVisibilityRelevance(RelevanceInterface& relevance) = 0;
    virtual void removeVisibilityRelevance(RelevanceInterface& relevance) = 0;
    virtual bool isVisible() const = 0;
    virtual void addSensitivityRelevance(RelevanceInterface& relevance) = 0;
    virtual void removeSensitivityRelevance(RelevanceInterface& relevance) = 0;
    virtual bool isSensitive() const = 0;

    /// Called right after a slot was connected to the signal. Do nothing in this class.
    virtual void signalVisibilityChangedConnected() const {}
    virtual void signalSensitivityChangedConnected() const {}

    virtual ~UIPropertyInterface() = default;

    /// Connects a slot `void()` that is called when isVisible() gives another answer.
    template<typename Slot>
    boost::signals2::connection connectToVisibilityChangedSignal(Slot const& slot) const
    {
        boost::signals2::connection connection = connectOnce(m_visibilityChanged, slot);
        signalVisibilityChangedConnected();
        return connection;
    }

    /// Connects a slot `void()` that is called when isSensitive() gives another answer.
    template<typename Slot>
    boost::signals2::connection connectToSensitivityChangedSignal(Slot const& slot) const
    {
        boost::signals2::connection connection = connectOnce(m_sensitivityChanged, slot);
        signalSensitivityChangedConnected();
        return connection;
    }

protected:
    mutable StateChangedSignal m_visibilityChanged;
    mutable StateChangedSignal m_sensitivityChanged;
};

} // namespace vantrix::sdk::ui::propertymanager
