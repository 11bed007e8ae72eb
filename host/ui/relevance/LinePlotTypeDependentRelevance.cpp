#include "ui/relevance/LinePlotTypeDependentRelevance.h"

#include "api/VtxUtilFrame.h"
#include "ui/relevance/StateChangeFilters.h"

namespace vantrix::sdk::ui::propertymanager {

namespace {

bool showsLinePlot()
{
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    return plotType == PlotType_XYLine || plotType == PlotType_PolarLine;
}

} // namespace

LinePlotTypeDependentRelevance::LinePlotTypeDependentRelevance()
    : StateChangeDependentRelevance(&common::isPlotTypeStateChange, &showsLinePlot,
                                    "This needs an XY or polar line plot.")
{}

} // namespace vantrix::sdk::ui::propertymanager
