#pragma once

namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable {

class QButtonObservable;

class QButtonListenerInterface
{
public:
    virtual ~QButtonListenerInterface() = default;

    /// The button was checked or unchecked, by whomever.
    virtual void buttonToggled(QButtonObservable& button) = 0;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable
