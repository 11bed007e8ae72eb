#pragma once

#include "propertymanager/generated/TicksPropertiesGenerated.h"
#include "propertymanager/managers/axis/AutoSpacingProperty.h"
#include "propertymanager/managers/axis/AxisEditPartPageManager.h"

namespace vantrix::sdk::ui::propertymanager {

/// Where the ticks of the current axis are, and how they look.
class AxisEditTicksPageManager : public AxisEditPartPageManager
{
public:
    explicit AxisEditTicksPageManager(AxisEditProperties& properties)
        : AxisEditPartPageManager(properties)
        , m_givenSpacing(follow([this] { return detail(); }, &AxisDetailPropertiesGenerated::getGrSpacing))
        , m_autoGrid(follow([this] { return detail(); }, &AxisDetailPropertiesGenerated::getAutoGrid))
        , m_spacing(*m_givenSpacing, properties)
        , m_autoSpacing(*m_autoGrid, m_spacing)
    {}

    /// How far ticks are apart, and whether the plot chooses that.
    UIStylePropertyAbstract<double>& spacing() { return m_spacing; }
    UIStylePropertyAbstract<bool>& autoSpacing() { return m_autoSpacing; }

    void update() override
    {
        AxisEditPartPageManager::update();
        m_spacing.refresh();
    }

    void onStateChange(toolbox::StateChangeEventInterface const& /*event*/,
                       integration::StateChangeNotifierInterface& /*notifier*/) override
    {
        m_spacing.refresh();
    }

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

private:
    boost::shared_ptr<UIStylePropertyAbstract<double>> m_givenSpacing;
    boost::shared_ptr<UIStylePropertyAbstract<bool>> m_autoGrid;
    TickSpacingProperty m_spacing;
    AutoSpacingProperty m_autoSpacing;
};

} // namespace vantrix::sdk::ui::propertymanager
