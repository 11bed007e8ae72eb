#pragma once

#include "propertybindings/BindingInterface.h"

#include <QAbstractButton>
#include <QPointer>

#include <boost/function.hpp>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Runs an action when a button is clicked.
///
/// What the user has typed but not yet confirmed counts: the button takes the focus first, however it was triggered.
/// When that edit is refused, the click is dropped, because the action would run on other values than the user sees or
/// meant.
class ButtonBinding : public virtual BindingInterface
{
public:
    /// @param button  not null
    /// @param action  not empty; an exception from it passes on
    ButtonBinding(QAbstractButton* button, boost::function<void()> action);

    /// A button shows no value: these do nothing.
    void updateWidget() override {}
    void updateVisibility() override {}
    void updateSensitivity() override {}
    void updateValueOnIdle() override {}

private:
    void pressed();
    void clicked();

    QPointer<QAbstractButton> m_button;
    boost::function<void()> m_action;
    bool m_editWasRefused = false;
    QObject m_connectionContext;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
