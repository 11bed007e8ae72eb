#include "ui/ButtonBinding.h"

#include "propertybindings/EditRefusal.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

ButtonBinding::ButtonBinding(QAbstractButton* button, boost::function<void()> action)
    : m_button(button)
    , m_action(std::move(action))
{
    QObject::connect(button, &QAbstractButton::pressed, &m_connectionContext, [this] { pressed(); });
    QObject::connect(button, &QAbstractButton::clicked, &m_connectionContext, [this] { clicked(); });
}

void ButtonBinding::pressed()
{
    // A mouse press has moved the focus already, and a refusal has brought it back to the field; an access key does not
    // move it.
    auto const focusIsOnRefusedEdit = [this] {
        QWidget const* const focused = m_button->window()->focusWidget();
        return focused && isRefusedEdit(*focused);
    };
    m_editWasRefused = focusIsOnRefusedEdit();
    if (!m_editWasRefused) {
        m_button->setFocus(Qt::OtherFocusReason);
        m_editWasRefused = focusIsOnRefusedEdit();
    }
}

void ButtonBinding::clicked()
{
    if (!m_editWasRefused) {
        m_action();
    }
    m_editWasRefused = false;
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
