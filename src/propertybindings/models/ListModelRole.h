#pragma once

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// The item role by which a row's value is read from the Qt face of a list model.
inline constexpr int ListModelValueRole = 1808;

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
