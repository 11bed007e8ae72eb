#pragma once

class QWidget;

namespace vantrix {
class InvalidPropertyValueException;
}

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Shows the user why a property did not take a value. An exception without a message shows nothing.
void showRefusal(InvalidPropertyValueException const& exception);

/// Activates the widget's window and gives the widget the focus, so that the user can correct the refused edit.
void returnToRefusedEdit(QWidget& widget);

/// Whether the event that is being handled made returnToRefusedEdit() send the user back to this widget. A button whose
/// press ended that edit asks this, so as not to act on values that the user did not mean.
bool isRefusedEdit(QWidget const& widget);

} // namespace vantrix::sdk::ui::dialogs::propertybindings
