#pragma once

#include "propertymanager/generated/TicksPropertiesGenerated.h"
#include "propertymanager/managers/axis/AxisEditPartPageManager.h"

namespace vantrix::sdk::ui::propertymanager {

/// Where the ticks of the current axis are, and how they look.
class AxisEditTicksPageManager : public AxisEditPartPageManager
{
public:
    explicit AxisEditTicksPageManager(AxisEditProperties& properties)
        : AxisEditPartPageManager(properties)
    {}

    /// A value of the current axis, or of its ticks.
    template<typename T, typename Set>
    Shared<T> axis(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail(); }, getter);
    }
    template<typename T, typename Set>
    Shared<T> ticks(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail()->getTicks(); }, getter);
    }
};

} // namespace vantrix::sdk::ui::propertymanager
