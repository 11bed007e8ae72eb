#pragma once

#include "propertymanager/generated/TextShapePropertiesGenerated.h"
#include "propertymanager/generated/TitlePropertiesGenerated.h"
#include "propertymanager/managers/axis/AxisEditPartPageManager.h"

namespace vantrix::sdk::ui::propertymanager {

/// The title of the current axis.
class AxisEditTitlePageManager : public AxisEditPartPageManager
{
public:
    explicit AxisEditTitlePageManager(AxisEditProperties& properties)
        : AxisEditPartPageManager(properties)
    {}

    /// A value of the current axis' title, or of its font.
    template<typename T, typename Set>
    Shared<T> title(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail()->getTitle(); }, getter);
    }
    template<typename T, typename Set>
    Shared<T> textShape(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail()->getTitle()->getTextShapeProperties(); }, getter);
    }
};

} // namespace vantrix::sdk::ui::propertymanager
