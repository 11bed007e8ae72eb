#pragma once

#include "propertymanager/generated/TicksLabelTitlePropertiesGenerated.h"
#include "propertymanager/managers/axis/AxisEditPropertiesManagerAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// What the pages of ticks, labels and title have in common: on which lines of the axis its part is drawn.
class AxisEditPartPageManager : public AxisEditPropertiesManagerAbstract
{
public:
    /// Which lines there are is a matter of the plot's type.
    Relevance gridBorderRelevance() const { return m_gridBorderRelevance; }
    Relevance oppositeEdgeRelevance() const { return m_oppositeEdgeRelevance; }
    Relevance allAxesRelevance() const { return m_allAxesRelevance; }

protected:
    explicit AxisEditPartPageManager(AxisEditProperties& properties)
        : AxisEditPropertiesManagerAbstract(properties)
        , m_gridBorderRelevance(
              whilePlotType({PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch, PlotType_PolarLine}))
        , m_oppositeEdgeRelevance(whilePlotType({PlotType_Cartesian3D}))
        , m_allAxesRelevance(whilePlotType({PlotType_PolarLine}))
    {}

private:
    Relevance m_gridBorderRelevance;
    Relevance m_oppositeEdgeRelevance;
    Relevance m_allAxesRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
