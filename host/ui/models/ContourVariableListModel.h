#pragma once

#include "ui/models/EnabledVariablesListModel.h"

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// The variables that can be contoured: every enabled one, the coordinates included.
class ContourVariableListModel : public EnabledVariablesListModel
{};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
