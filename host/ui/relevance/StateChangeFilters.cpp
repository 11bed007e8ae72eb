#include "ui/relevance/StateChangeFilters.h"

#include "api/VtxEnumerations.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vantrix::sdk::ui::common {

namespace {

/// The first names of style paths that line plots, texts, geometries, paper and program have to themselves.
constexpr std::array<std::string_view, 14> NotFieldStyle{
    "LineMap",    "LinePlotLayers", "XYLineAxis", "PolarAxis", "GlobalLinePlot", "GlobalPolar", "FrameLayout",
    "FrameSetup", "Paper",          "RulerGrid",  "Print",     "Interface",      "Performance", "CustomPaper"};

bool isStyleOf(toolbox::StateChangeEventInterface const& event, std::string_view firstName)
{
    return event.kind() == StateChange_Style && event.styleParam(1) == firstName;
}

} // namespace

bool isPickListStateChange(toolbox::StateChangeEventInterface const& event)
{
    int const kind = event.kind();
    return kind == StateChange_PickListCleared || kind == StateChange_PickListGroup || kind == StateChange_PickListItem;
}

bool isNewActiveFrameStateChange(toolbox::StateChangeEventInterface const& event)
{
    switch (event.kind()) {
    case StateChange_FrameDeleted:
    case StateChange_NewActiveFrame:
    case StateChange_NewLayout:
    case StateChange_CompleteReset:
    case StateChange_UpdatesResumed:
    case StateChange_PageDeleted:
    case StateChange_NewActivePage:
        return true;
    default:
        return false;
    }
}

bool isPlotTypeStateChange(toolbox::StateChangeEventInterface const& event)
{
    // A data set that goes takes the plots with it.
    return isStyleOf(event, "PlotType") || event.kind() == StateChange_DataSetReset ||
           isNewActiveFrameStateChange(event);
}

bool isFieldStyleStateChange(toolbox::StateChangeEventInterface const& event)
{
    switch (event.kind()) {
    case StateChange_Style: {
        std::string const name = event.styleParam(1);
        return std::find(NotFieldStyle.begin(), NotFieldStyle.end(), name) == NotFieldStyle.end();
    }
    case StateChange_ContourLevels:
    case StateChange_View:
    case StateChange_ColorMap:
    case StateChange_ContourVar:
    case StateChange_Streamtrace:
    case StateChange_AxisVariables:
        return true;
    default:
        return isPlotTypeStateChange(event);
    }
}

bool isDataRelatedStateChange(toolbox::StateChangeEventInterface const& event)
{
    switch (event.kind()) {
    case StateChange_VarsAltered:
    case StateChange_VarsAdded:
    case StateChange_ZonesDeleted:
    case StateChange_ZonesAdded:
    case StateChange_NodeMapsAltered:
    case StateChange_DataSetReset:
    case StateChange_ZoneName:
    case StateChange_VarName:
    case StateChange_DataAvailability:
        return true;
    default:
        return isNewActiveFrameStateChange(event);
    }
}

bool isMacroRecordingStateChange(toolbox::StateChangeEventInterface const& event)
{
    return event.kind() == StateChange_MacroRecording || event.kind() == StateChange_CompleteReset;
}

bool isFieldOrDataRelatedStateChange(toolbox::StateChangeEventInterface const& event)
{
    return isFieldStyleStateChange(event) || isDataRelatedStateChange(event);
}

} // namespace vantrix::sdk::ui::common
