#pragma once

#include "api/VtxEnumerations.h"
#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// The unit of a polar plot's angles as a text, which is only shown.
class ThetaModeStringProperty : public UIStylePropertyDecoratorAbstract<std::string, ThetaMode_e>
{
public:
    /// @param period  the length of a full circle; made editable, whenever the text is read, where the unit is
    /// arbitrary.
    ///                Both arguments outlive this property.
    ThetaModeStringProperty(UIStylePropertyAbstract<ThetaMode_e>& mode, UIPropertyInterface& period);

    std::string retrieveValue() const override;

    /// Does nothing: the unit is chosen by other means.
    void storeValue(std::string const& value) override;

private:
    UIPropertyInterface& m_period;
};

} // namespace vantrix::sdk::ui::propertymanager
