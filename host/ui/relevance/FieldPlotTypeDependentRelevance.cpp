#include "ui/relevance/FieldPlotTypeDependentRelevance.h"

#include "api/VtxUtilFrame.h"
#include "ui/relevance/StateChangeFilters.h"

namespace vantrix::sdk::ui::propertymanager {

namespace {

bool showsFieldPlot()
{
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    return plotType == PlotType_Cartesian2D || plotType == PlotType_Cartesian3D;
}

} // namespace

FieldPlotTypeDependentRelevance::FieldPlotTypeDependentRelevance()
    : StateChangeDependentRelevance(&common::isPlotTypeStateChange, &showsFieldPlot,
                                    "This needs a 2D or 3D Cartesian plot.")
{}

} // namespace vantrix::sdk::ui::propertymanager
