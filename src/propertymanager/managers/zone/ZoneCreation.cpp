#include "propertymanager/managers/zone/ZoneCreation.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "toolbox/StateChangeEventInterface.h"

namespace vantrix::sdk::ui::propertymanager::zonecreation {

std::string const contextExplanation =
    "A zone can be created in a 2D or 3D Cartesian plot, or in a sketch that has no data yet.";

std::string const oneKPlaneExplanation =
    "The plot has no third axis: the zone will have one K plane. Choose the 3D Cartesian plot type for more.";

bool contextIsValid()
{
    AppLock const lock(false);
    if (VtxUtilPageGetCount() < 1 || VtxUtilFrameGetCount() < 1) {
        return false;
    }
    switch (VtxUtilFrameGetPlotType()) {
    case PlotType_Cartesian3D:
    case PlotType_Cartesian2D:
        return true;
    case PlotType_Sketch:
        return !VtxUtilDataSetIsAvailable();
    default:
        return false;
    }
}

bool mayAffect3DZones(toolbox::StateChangeEventInterface const& event)
{
    if (!contextIsValid()) {
        return false;
    }
    switch (event.kind()) {
    case StateChange_VarsAltered:
    case StateChange_VarsAdded:
    case StateChange_ZonesDeleted:
    case StateChange_ZonesAdded:
    case StateChange_FrameDeleted:
    case StateChange_NewActiveFrame:
    case StateChange_DataSetReset:
    case StateChange_NewLayout:
    case StateChange_CompleteReset:
    case StateChange_DataAvailability:
    case StateChange_NewActivePage:
        return true;
    case StateChange_Style:
        return event.styleParam(1) == "ActiveFieldMaps" || event.styleParam(1) == "PlotType";
    default:
        return false;
    }
}

MouseModeKeeper::MouseModeKeeper()
    : m_mouseMode(VtxUtilMouseGetCurrentMode())
{}

MouseModeKeeper::~MouseModeKeeper()
{
    if (VtxUtilMouseIsValidMode(m_mouseMode)) {
        VtxUtilMouseSetMode(m_mouseMode);
    }
}

} // namespace vantrix::sdk::ui::propertymanager::zonecreation
