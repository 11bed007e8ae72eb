#include "propertymanager/managers/axis/ThetaModeStringProperty.h"

#include "propertymanager/UIPropertyClassicDirectRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

ThetaModeStringProperty::ThetaModeStringProperty(UIStylePropertyAbstract<ThetaMode_e>& mode,
                                                 UIPropertyInterface& period)
    : UIStylePropertyDecoratorAbstract(mode)
    , m_period(period)
{}

std::string ThetaModeStringProperty::retrieveValue() const
{
    ThetaMode_e const mode = wrapped().value();
    UIPropertyClassicDirectRelevance::directSetPropertySensitivity(m_period, mode == ThetaMode_Arbitrary);
    switch (mode) {
    case ThetaMode_Degrees:
        return "Theta Mode: Degrees";
    case ThetaMode_Radians:
        return "Theta Mode: Radians";
    case ThetaMode_Arbitrary:
        break;
    }
    return "Theta Mode: Arbitrary";
}

void ThetaModeStringProperty::storeValue(std::string const&) {}

} // namespace vantrix::sdk::ui::propertymanager
