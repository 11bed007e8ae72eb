#include "ui/models/ZoneListModel.h"

#include "api/VtxUtilData.h"
#include "sdk/DataQueries.h"
#include "toolbox/HostString.h"

#include <set>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

std::vector<int> ZoneListModel::readNumbers() const
{
    std::set<int> const zones = getEnabledZones().members();
    return {zones.begin(), zones.end()};
}

std::string ZoneListModel::nameOf(int number) const
{
    char* name = nullptr;
    VtxUtilZoneGetName(number, &name);
    return toolbox::takeHostString(name);
}

bool ZoneListModel::isConcernedBy(int stateChangeKind) const
{
    switch (stateChangeKind) {
    case StateChange_ZonesDeleted:
    case StateChange_ZonesAdded:
    case StateChange_ZoneName:
    case StateChange_DataAvailability:
        return true;
    default:
        return isChangeOfFrameOrData(stateChangeKind);
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
