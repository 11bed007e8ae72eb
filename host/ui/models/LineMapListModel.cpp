#include "ui/models/LineMapListModel.h"

#include "api/VtxUtilLineMap.h"
#include "toolbox/HostString.h"

#include <numeric>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

std::vector<int> LineMapListModel::readNumbers() const
{
    std::vector<int> lineMaps(static_cast<std::size_t>(VtxUtilLineMapGetCount()));
    std::iota(lineMaps.begin(), lineMaps.end(), 1);
    return lineMaps;
}

std::string LineMapListModel::nameOf(int number) const
{
    char* name = nullptr;
    VtxUtilLineMapGetName(number, &name);
    return toolbox::takeHostString(name);
}

bool LineMapListModel::isConcernedBy(int stateChangeKind) const
{
    switch (stateChangeKind) {
    case StateChange_LineMapsAddedOrDeleted:
    case StateChange_LineMapName:
        return true;
    default:
        return isChangeOfFrameOrData(stateChangeKind);
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
