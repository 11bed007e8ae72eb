#pragma once

namespace vantrix::sdk::ui::propertymanager {

class UIKernelStylePropertiesInterface;

/// Submits a modal set as one undo step. When the host refuses a value the user is told which and why, and the host is
/// as it was before.
/// @param stepName  of the undo step, as a menu shows it
/// @return whether the set was submitted
bool submitAsStep(UIKernelStylePropertiesInterface& set, char const* stepName);

} // namespace vantrix::sdk::ui::propertymanager
