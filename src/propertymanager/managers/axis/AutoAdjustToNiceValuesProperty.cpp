#include "propertymanager/managers/axis/AutoAdjustToNiceValuesProperty.h"

#include "api/VtxUtilAxis.h"
#include "propertymanager/managers/axis/AxisEditProperties.h"
#include "sdk/AppLock.h"

namespace vantrix::sdk::ui::propertymanager {

AutoAdjustToNiceValuesProperty::AutoAdjustToNiceValuesProperty(UIStylePropertyAbstract<bool>& setting,
                                                               AxisEditProperties const& properties)
    : UIStylePropertyDecoratorAbstract(setting)
    , m_properties(properties)
{}

void AutoAdjustToNiceValuesProperty::storeValue(bool const& value)
{
    AppLock const lock; // setting and range are one step
    wrapped().setValue(value);
    if (value) {
        VtxUtilViewAxisMakeCurValsNice(m_properties.axisChar(), m_properties.axisNum());
    }
}

} // namespace vantrix::sdk::ui::propertymanager
