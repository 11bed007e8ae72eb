#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/UIStylePropertyAbstract.h"
#include "sdk/SignalConnectionCollection.h"

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while a property has a suitable value. Where the controller's own relevance is followed, it must also be
/// sensitive and visible: a field that depends on a disabled or hidden control is itself irrelevant.
template<typename T>
class PropertyDependentRelevanceAbstract : public virtual RelevanceInterface
{
public:
    /// @param property                  the controlling property; not owned, must outlive the relevance
    /// @param followControllerRelevance take the property's own visible and sensitive state into account
    PropertyDependentRelevanceAbstract(UIStylePropertyAbstract<T>& property, bool followControllerRelevance)
        : m_property(property)
        , m_followControllerRelevance(followControllerRelevance)
    {
        m_connections.add(property.connectToValueChangedSignal([this](T const&) { emitRelevanceChangedSignal(); }));
        if (followControllerRelevance) {
            m_connections.add(property.connectToSensitivityChangedSignal([this] { emitRelevanceChangedSignal(); }));
            m_connections.add(property.connectToVisibilityChangedSignal([this] { emitRelevanceChangedSignal(); }));
        }
    }

    bool isRelevant() const override
    {
        if (!isRelevantValue(m_property.value())) {
            return false;
        }
        return !m_followControllerRelevance || (m_property.isSensitive() && m_property.isVisible());
    }

    virtual bool isRelevantValue(T const& value) const = 0;

private:
    UIStylePropertyAbstract<T>& m_property;
    SignalConnectionCollection m_connections;
    bool m_followControllerRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
