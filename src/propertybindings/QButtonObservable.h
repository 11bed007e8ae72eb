#pragma once

#include <QAbstractButton>
#include <QPointer>

#include <vector>

namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable {

class QButtonListenerInterface;

/// Tells listeners whenever a button's checked state changes.
class QButtonObservable
{
public:
    explicit QButtonObservable(QAbstractButton& button);
    ~QButtonObservable();
    QButtonObservable(QButtonObservable const&) = delete;
    QButtonObservable& operator=(QButtonObservable const&) = delete;

    /// The observed button, null once it is gone.
    QAbstractButton* button() const { return m_button; }

    /// The listener must be removed before it goes. A listener is told once, however often it was added.
    void addListener(QButtonListenerInterface& listener);
    void removeListener(QButtonListenerInterface& listener);

private:
    QPointer<QAbstractButton> m_button;
    std::vector<QButtonListenerInterface*> m_listeners;
    QObject m_context; ///< ends the connection to the button
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable
