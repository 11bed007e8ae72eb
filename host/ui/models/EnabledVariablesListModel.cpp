#include "ui/models/EnabledVariablesListModel.h"

#include "api/VtxUtilData.h"
#include "toolbox/HostString.h"
#include "toolbox/Set.h"

#include <set>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

std::vector<int> EnabledVariablesListModel::readNumbers() const
{
    std::set<int> const variables = toolbox::Set(VtxUtilVarGetEnabled()).members();
    return {variables.begin(), variables.end()};
}

std::string EnabledVariablesListModel::nameOf(int number) const
{
    char* name = nullptr;
    VtxUtilVarGetName(number, &name);
    return toolbox::takeHostString(name);
}

bool EnabledVariablesListModel::isConcernedBy(int stateChangeKind) const
{
    switch (stateChangeKind) {
    case StateChange_VarsAdded:
    case StateChange_VarName:
    case StateChange_DataAvailability:
        return true;
    default:
        return isChangeOfFrameOrData(stateChangeKind);
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
