#include "propertymanager/managers/axis/AxisEditPropertiesManager.h"

#include "api/VtxUtilFrame.h"
#include "ui/relevance/PlotTypeDependentRelevance.h"
#include "ui/relevance/RelevanceExpression.h"

namespace vantrix::sdk::ui::propertymanager {

namespace {

boost::shared_ptr<RelevanceInterface const> whilePlotIs(PlotType_e plotType)
{
    return boost::make_shared<PlotTypeDependentRelevance const>(plotType);
}

} // namespace

AxisEditPropertiesManager::AxisEditPropertiesManager(AxisEditProperties& properties)
    : AxisEditPropertiesManagerAbstract(properties)
    , m_showAxis(*detail()->getShowAxis())
    , m_polarLineAxisRelevance(whilePlotIs(PlotType_PolarLine))
    , m_xyLineAxisRelevance(whilePlotIs(PlotType_XYLine))
    , m_twoDAxisRelevance(RelevanceExpression(whilePlotIs(PlotType_Cartesian2D)).oor(whilePlotIs(PlotType_Sketch)))
    , m_threeDAxisRelevance(whilePlotIs(PlotType_Cartesian3D))
{}

void AxisEditPropertiesManager::update()
{
    if (properties().axisType() == AxisEditProperties::ThirdAxis && VtxUtilFrameGetPlotType() != PlotType_Cartesian3D) {
        properties().setAxis(AxisEditProperties::FirstAxis);
    }
    m_showAxis.setProperty(*detail()->getShowAxis());
    AxisEditPropertiesManagerAbstract::update();
}

} // namespace vantrix::sdk::ui::propertymanager
