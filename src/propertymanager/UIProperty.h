#pragma once

#include "propertymanager/RelevanceConjunction.h"

namespace vantrix::sdk::ui::propertymanager {

/// Keeps the visibility and the sensitivity relevances of one property for it. The operations are those of
/// UIPropertyInterface.
class UIProperty
{
public:
    using Signal = UIPropertyInterface::StateChangedSignal;

    /// @param visibilityChanged   the property's signals; they must outlive this object
    UIProperty(Signal& visibilityChanged, Signal& sensitivityChanged)
        : m_visibility(visibilityChanged)
        , m_sensitivity(sensitivityChanged)
    {}

    void addVisibilityRelevance(RelevanceInterface& relevance) { m_visibility.add(relevance); }
    void removeVisibilityRelevance(RelevanceInterface& relevance) { m_visibility.remove(relevance); }
    bool isVisible() const { return m_visibility.holds(); }
    void addSensitivityRelevance(RelevanceInterface& relevance) { m_sensitivity.add(relevance); }
    void removeSensitivityRelevance(RelevanceInterface& relevance) { m_sensitivity.remove(relevance); }
    bool isSensitive() const { return m_sensitivity.holds(); }

    void signalVisibilityChangedConnected() { m_visibility.listenWhileHeard(); }
    void signalSensitivityChangedConnected() { m_sensitivity.listenWhileHeard(); }

private:
    RelevanceConjunction m_visibility;
    RelevanceConjunction m_sensitivity;
};

} // namespace vantrix::sdk::ui::propertymanager
