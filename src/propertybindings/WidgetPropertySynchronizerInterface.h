#pragma once

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Keeps what a widget shows and a property equal for as long as it lives.
class WidgetPropertySynchronizerInterface
{
public:
    WidgetPropertySynchronizerInterface() = default;
    WidgetPropertySynchronizerInterface(WidgetPropertySynchronizerInterface const&) = delete;
    WidgetPropertySynchronizerInterface& operator=(WidgetPropertySynchronizerInterface const&) = delete;
    virtual ~WidgetPropertySynchronizerInterface() = default;

    virtual void updateWidgetFromProperty() = 0;
    virtual void updatePropertyFromWidget() = 0;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
