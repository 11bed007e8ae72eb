#pragma once

#include "propertymanager/generated/TextShapePropertiesGenerated.h"
#include "propertymanager/generated/TicklabelPropertiesGenerated.h"
#include "propertymanager/managers/axis/AxisEditPartPageManager.h"

namespace vantrix::sdk::ui::propertymanager {

/// The numbers at the ticks of the current axis.
class AxisEditLabelPageManager : public AxisEditPartPageManager
{
public:
    explicit AxisEditLabelPageManager(AxisEditProperties& properties)
        : AxisEditPartPageManager(properties)
    {}

    /// A value of the current axis' labels, or of their font.
    template<typename T, typename Set>
    Shared<T> labels(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail()->getTicklabel(); }, getter);
    }
    template<typename T, typename Set>
    Shared<T> textShape(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail()->getTicklabel()->getTextShapeProperties(); }, getter);
    }
};

} // namespace vantrix::sdk::ui::propertymanager
