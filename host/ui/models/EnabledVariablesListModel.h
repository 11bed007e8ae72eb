#pragma once

#include "ui/models/HostListModelAbstract.h"

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// The variables of the active frame's data set that take part (are enabled).
class EnabledVariablesListModel : public HostListModelAbstract
{
protected:
    std::vector<int> readNumbers() const override;
    std::string nameOf(int number) const override;
    bool isConcernedBy(int stateChangeKind) const override;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
