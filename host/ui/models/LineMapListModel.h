#pragma once

#include "ui/models/HostListModelAbstract.h"

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// The line maps of the active frame.
class LineMapListModel : public HostListModelAbstract
{
protected:
    std::vector<int> readNumbers() const override;
    std::string nameOf(int number) const override;
    bool isConcernedBy(int stateChangeKind) const override;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
