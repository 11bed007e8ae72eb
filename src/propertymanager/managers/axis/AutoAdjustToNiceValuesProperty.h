#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

class AxisEditProperties;

/// Whether ranges are rounded to nice values. Turning it on rounds the range of the axis being edited at once.
class AutoAdjustToNiceValuesProperty : public UIStylePropertyDecoratorAbstract<bool, bool>
{
public:
    /// @param setting     of the axes of the current plot; both arguments outlive this property
    AutoAdjustToNiceValuesProperty(UIStylePropertyAbstract<bool>& setting, AxisEditProperties const& properties);

    bool retrieveValue() const override { return wrapped().value(); }
    void storeValue(bool const& value) override;

private:
    AxisEditProperties const& m_properties;
};

} // namespace vantrix::sdk::ui::propertymanager
