#pragma once

#include "propertymanager/UIProperty.h"
#include "propertymanager/UIStylePropertyAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// A UI style property that keeps its relevances itself: what the kinds that hold a value have in common.
template<typename T>
class UIStylePropertyWithRelevances : public UIStylePropertyAbstract<T>
{
public:
    using UIStylePropertyAbstract<T>::UIStylePropertyAbstract;

    void addVisibilityRelevance(RelevanceInterface& relevance) override { m_ui.addVisibilityRelevance(relevance); }
    void addSensitivityRelevance(RelevanceInterface& relevance) override { m_ui.addSensitivityRelevance(relevance); }
    void removeVisibilityRelevance(RelevanceInterface& relevance) override
    {
        m_ui.removeVisibilityRelevance(relevance);
    }
    void removeSensitivityRelevance(RelevanceInterface& relevance) override
    {
        m_ui.removeSensitivityRelevance(relevance);
    }
    bool isVisible() const override { return m_ui.isVisible(); }
    bool isSensitive() const override { return m_ui.isSensitive(); }
    void signalVisibilityChangedConnected() const override { m_ui.signalVisibilityChangedConnected(); }
    void signalSensitivityChangedConnected() const override { m_ui.signalSensitivityChangedConnected(); }

private:
    mutable UIProperty m_ui{this->m_visibilityChanged, this->m_sensitivityChanged};
};

#define VX_EXTERN(T) extern template class UIStylePropertyWithRelevances<T>;
VX_UI_PROPERTY_TYPES(VX_EXTERN)
#undef VX_EXTERN

} // namespace vantrix::sdk::ui::propertymanager
