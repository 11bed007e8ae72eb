#pragma once

#include "propertymanager/generated/GlobalThreeDPropertiesGenerated.h"
#include "propertymanager/generated/GridAreaWithColorPropertiesGenerated.h"
#include "propertymanager/generated/ViewportPositionPropertiesGenerated.h"
#include "propertymanager/generated/ViewportStylePropertiesGenerated.h"
#include "propertymanager/managers/axis/AxisEditPropertiesManagerAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// The area that the axes of the plot span, and where in the frame it lies.
class AxisEditAreaPageManager : public AxisEditPropertiesManagerAbstract
{
public:
    explicit AxisEditAreaPageManager(AxisEditProperties& properties);

    /// A value of the area between the axes, which every plot has, or of its border where it has a colour of its own.
    template<typename T, typename Set>
    Shared<T> gridArea(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return findGridArea(); }, getter);
    }
    Shared<int> gridAreaBorderColor();

    /// A value of the viewport's place, or of a polar plot's viewport.
    template<typename T, typename Set>
    Shared<T> viewportPosition(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return findViewportPosition(); }, getter);
    }
    template<typename T, typename Set>
    Shared<T> viewportStyle(Shared<T> (Set::*getter)() const) const
    {
        return ((*properties().getPolarAxis()->getViewportStyle()).*getter)();
    }

    /// Space around the data of a 3D plot.
    Shared<double> axisBoxPadding() const { return properties().getGlobalThreeD()->getAxisBoxPadding(); }

    Relevance flatRelevance() const { return m_flatRelevance; }
    Relevance threeDRelevance() const { return m_threeDRelevance; }
    Relevance polarRelevance() const { return m_polarRelevance; }

private:
    boost::shared_ptr<GridAreaPropertiesGenerated> findGridArea() const;
    boost::shared_ptr<GridAreaWithColorPropertiesGenerated> findGridAreaWithColor() const;
    boost::shared_ptr<ViewportPositionPropertiesGenerated> findViewportPosition() const;

    Relevance m_flatRelevance;
    Relevance m_threeDRelevance;
    Relevance m_polarRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
