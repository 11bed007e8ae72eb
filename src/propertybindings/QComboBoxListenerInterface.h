#pragma once

namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable {

class QComboBoxObservable;

class QComboBoxListenerInterface
{
public:
    virtual ~QComboBoxListenerInterface() = default;

    /// The user chose a row; -1 for none.
    virtual void currentIndexChanged(int row, QComboBoxObservable& comboBox) = 0;

    /// The user has finished typing a text that is not the one of the current row. Editable combo boxes only.
    virtual void textEdited(QComboBoxObservable& /*comboBox*/) {}
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable
