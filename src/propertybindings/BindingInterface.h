#pragma once

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Keeps one widget in step with one property for as long as it lives. A dialog keeps its bindings in a container that
/// lives as long as the dialog. A binding survives the death of its widget: from then on it does nothing.
class BindingInterface
{
public:
    /// When a notification of the property reaches the widget.
    enum WidgetUpdateMode_e
    {
        Immediate = 0, ///< within the notification
        OnIdle = 1     ///< once on the next idle turn, however many notifications came before it
    };

    /// When a change of the list model behind a combo box reaches the widget.
    enum ModelUpdateMode
    {
        UpdateAlways = 0,  ///< as it happens
        DeferWhileBusy = 1 ///< the current row stays while the user has the popup open
    };

    BindingInterface() = default;
    BindingInterface(BindingInterface const&) = delete;
    BindingInterface& operator=(BindingInterface const&) = delete;
    virtual ~BindingInterface() = default;

    /// Writes the property's current value into the widget.
    virtual void updateWidget() = 0;

    /// Shows or hides the widget after the property's visibility.
    virtual void updateVisibility() = 0;

    /// Enables or disables the widget after the property's sensitivity.
    virtual void updateSensitivity() = 0;

    /// Asks for one updateWidget() on the next idle turn.
    virtual void updateValueOnIdle() = 0;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
