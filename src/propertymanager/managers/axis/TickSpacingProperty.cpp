#include "propertymanager/managers/axis/TickSpacingProperty.h"

#include "api/VtxUtilAxis.h"
#include "propertymanager/managers/axis/AxisEditProperties.h"

namespace vantrix::sdk::ui::propertymanager {

TickSpacingProperty::TickSpacingProperty(UIStylePropertyAbstract<double>& given, AxisEditProperties const& properties)
    : UIStylePropertyDecoratorAbstract(given)
    , m_properties(properties)
    , m_shown(given.value())
{}

double TickSpacingProperty::retrieveValue() const
{
    double spacing = 0.0;
    bool const isTold = VtxUtilAxisGetTickSpacing(m_properties.axisChar(), m_properties.axisNum(), &spacing);
    return isTold ? spacing : wrapped().value();
}

void TickSpacingProperty::refresh()
{
    double const spacing = retrieveValue();
    if (spacing != m_shown) {
        m_shown = spacing;
        valueChanged();
    }
}

} // namespace vantrix::sdk::ui::propertymanager
