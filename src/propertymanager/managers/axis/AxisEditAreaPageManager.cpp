#include "propertymanager/managers/axis/AxisEditAreaPageManager.h"

#include "api/VtxUtilFrame.h"

namespace vantrix::sdk::ui::propertymanager {

AxisEditAreaPageManager::AxisEditAreaPageManager(AxisEditProperties& properties)
    : AxisEditPropertiesManagerAbstract(properties)
    , m_flatRelevance(whilePlotType({PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch, PlotType_PolarLine}))
    , m_threeDRelevance(whilePlotType({PlotType_Cartesian3D}))
    , m_polarRelevance(whilePlotType({PlotType_PolarLine}))
{}

AxisEditAreaPageManager::Shared<int> AxisEditAreaPageManager::gridAreaBorderColor()
{
    return follow([this] { return findGridAreaWithColor(); }, &GridAreaWithColorPropertiesGenerated::getColor);
}

boost::shared_ptr<GridAreaPropertiesGenerated> AxisEditAreaPageManager::findGridArea() const
{
    if (VtxUtilFrameGetPlotType() == PlotType_Cartesian3D) {
        return properties().getThreedAxis()->getGridArea();
    }
    return findGridAreaWithColor();
}

boost::shared_ptr<GridAreaWithColorPropertiesGenerated> AxisEditAreaPageManager::findGridAreaWithColor() const
{
    switch (VtxUtilFrameGetPlotType()) {
    case PlotType_XYLine:
        return properties().getXyLineAxis()->getGridArea();
    case PlotType_Sketch:
        return properties().getSketchAxis()->getGridArea();
    case PlotType_PolarLine:
        return properties().getPolarAxis()->getGridArea();
    default:
        return properties().getTwodAxis()->getGridArea();
    }
}

boost::shared_ptr<ViewportPositionPropertiesGenerated> AxisEditAreaPageManager::findViewportPosition() const
{
    switch (VtxUtilFrameGetPlotType()) {
    case PlotType_XYLine:
        return properties().getXyLineAxis()->getViewportPosition();
    case PlotType_Sketch:
        return properties().getSketchAxis()->getViewportPosition();
    case PlotType_PolarLine:
        return properties().getPolarAxis()->getViewportPosition();
    default:
        return properties().getTwodAxis()->getViewportPosition();
    }
}

} // namespace vantrix::sdk::ui::propertymanager
