#include "propertybindings/QComboBoxObservable.h"

#include "property/InvalidPropertyValueException.h"
#include "propertybindings/EditRefusal.h"
#include "propertybindings/QComboBoxListenerInterface.h"

#include <QLineEdit>

#include <algorithm>

namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable {

QComboBoxObservable::QComboBoxObservable(QComboBox& comboBox)
    : m_comboBox(&comboBox)
{
    QObject::connect(&comboBox, &QComboBox::activated, &m_context, [this](int row) {
        tell([&](QComboBoxListenerInterface& listener) { listener.currentIndexChanged(row, *this); });
    });
    if (comboBox.lineEdit()) {
        // The combo box has heard this signal first and has chosen the row whose text was typed.
        QObject::connect(comboBox.lineEdit(), &QLineEdit::editingFinished, &m_context, [this] {
            if (m_comboBox->currentText() !=
                m_comboBox->itemData(m_comboBox->currentIndex(), Qt::EditRole).toString()) {
                tell([this](QComboBoxListenerInterface& listener) { listener.textEdited(*this); });
            }
        });
    }
}

QComboBoxObservable::~QComboBoxObservable() = default;

void QComboBoxObservable::addListener(QComboBoxListenerInterface& listener)
{
    removeListener(listener);
    m_listeners.push_back(&listener);
}

void QComboBoxObservable::removeListener(QComboBoxListenerInterface& listener)
{
    std::erase(m_listeners, &listener);
}

template<typename Call>
void QComboBoxObservable::tell(Call call)
{
    try {
        for (auto* listener : std::vector(m_listeners)) {
            call(*listener);
        }
    } catch (InvalidPropertyValueException const& exception) {
        showRefusal(exception);
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable
