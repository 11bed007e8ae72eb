#include "propertybindings/QButtonObservable.h"

#include "propertybindings/QButtonListenerInterface.h"

namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable {

QButtonObservable::QButtonObservable(QAbstractButton& button)
    : m_button(&button)
{
    QObject::connect(&button, &QAbstractButton::toggled, &m_context, [this] {
        for (auto* listener : std::vector(m_listeners)) {
            listener->buttonToggled(*this);
        }
    });
}

QButtonObservable::~QButtonObservable() = default;

void QButtonObservable::addListener(QButtonListenerInterface& listener)
{
    removeListener(listener);
    m_listeners.push_back(&listener);
}

void QButtonObservable::removeListener(QButtonListenerInterface& listener)
{
    std::erase(m_listeners, &listener);
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable
