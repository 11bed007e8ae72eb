#include "ui/relevance/PlotTypeDependentRelevance.h"

#include "api/VtxUtilFrame.h"
#include "ui/relevance/StateChangeFilters.h"

namespace vantrix::sdk::ui::propertymanager {

namespace {

std::string nameOf(PlotType_e plotType)
{
    switch (plotType) {
    case PlotType_Cartesian3D:
        return "a 3D Cartesian";
    case PlotType_Cartesian2D:
        return "a 2D Cartesian";
    case PlotType_XYLine:
        return "an XY line";
    case PlotType_Sketch:
        return "a sketch";
    case PlotType_PolarLine:
        return "a polar line";
    }
    return "another";
}

} // namespace

PlotTypeDependentRelevance::PlotTypeDependentRelevance(PlotType_e plotType)
    : StateChangeDependentRelevance(
          &common::isPlotTypeStateChange, [plotType] { return VtxUtilFrameGetPlotType() == plotType; },
          "This needs " + nameOf(plotType) + " plot.")
{}

} // namespace vantrix::sdk::ui::propertymanager
