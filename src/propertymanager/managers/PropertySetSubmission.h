#pragma once

namespace vantrix::sdk::ui::propertymanager {

class UIKernelStylePropertiesInterface;

/// Submits a modal set as one undo step.
/// @param stepName  of the undo step, as a menu shows it
/// @return true
/// @throws MemberRefusedException when the host refuses a value; the host is then as it was before. The dialog tells
/// the
///         user, because it knows the field; see ModalDialogAbstract
bool submitAsStep(UIKernelStylePropertiesInterface& set, char const* stepName);

} // namespace vantrix::sdk::ui::propertymanager
