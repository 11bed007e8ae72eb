#include "propertymanager/managers/axis/AxisEditGridPageManager.h"

#include "api/VtxUtilFrame.h"

namespace vantrix::sdk::ui::propertymanager {

AxisEditGridPageManager::AxisEditGridPageManager(AxisEditProperties& properties)
    : AxisEditPropertiesManagerAbstract(properties)
    , m_cutoffRelevance(whileAxis([this] { return this->properties().axisChar() == 'T'; }))
    , m_preciseGridRelevance(
          whilePlotType({PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch, PlotType_PolarLine}))
{}

boost::shared_ptr<PreciseGridPropertiesGenerated> AxisEditGridPageManager::findPreciseGrid() const
{
    switch (VtxUtilFrameGetPlotType()) {
    case PlotType_XYLine:
        return properties().getXyLineAxis()->getPreciseGrid();
    case PlotType_Sketch:
        return properties().getSketchAxis()->getPreciseGrid();
    case PlotType_PolarLine:
        return properties().getPolarAxis()->getPreciseGrid();
    default:
        return properties().getTwodAxis()->getPreciseGrid();
    }
}

} // namespace vantrix::sdk::ui::propertymanager
