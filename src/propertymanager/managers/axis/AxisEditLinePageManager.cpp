#include "propertymanager/managers/axis/AxisEditLinePageManager.h"

namespace vantrix::sdk::ui::propertymanager {

AxisEditLinePageManager::AxisEditLinePageManager(AxisEditProperties& properties)
    : AxisEditPropertiesManagerAbstract(properties)
    , m_alignmentModel(boost::make_shared<AlignmentModel>(properties))
    , m_flatRelevance(whilePlotType({PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch, PlotType_PolarLine}))
    , m_threeDRelevance(whilePlotType({PlotType_Cartesian3D}))
    , m_cartesianRelevance(whilePlotType({PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch}))
    , m_rRelevance(whileAxis([this] { return this->properties().axisChar() == 'R'; }))
{}

} // namespace vantrix::sdk::ui::propertymanager
