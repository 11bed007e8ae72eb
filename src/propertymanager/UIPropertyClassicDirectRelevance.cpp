#include "propertymanager/UIPropertyClassicDirectRelevance.h"

#include "propertymanager/UIPropertyInterface.h"

namespace vantrix::sdk::ui::propertymanager {

namespace {

class NeverRelevant : public RelevanceInterface
{
public:
    bool isRelevant() const override { return false; }
};

RelevanceInterface& neverRelevant()
{
    // Never destroyed: properties that live as long as the process hold it.
    static auto* const relevance = new NeverRelevant();
    return *relevance;
}

} // namespace

void UIPropertyClassicDirectRelevance::directSetPropertyVisibility(UIPropertyInterface& property, bool visible)
{
    if (visible) {
        property.removeVisibilityRelevance(neverRelevant());
    } else {
        property.addVisibilityRelevance(neverRelevant());
    }
}

void UIPropertyClassicDirectRelevance::directSetPropertySensitivity(UIPropertyInterface& property, bool sensitive)
{
    if (sensitive) {
        property.removeSensitivityRelevance(neverRelevant());
    } else {
        property.addSensitivityRelevance(neverRelevant());
    }
}

} // namespace vantrix::sdk::ui::propertymanager
