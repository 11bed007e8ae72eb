#pragma once

#include <QComboBox>
#include <QPointer>

#include <vector>

namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable {

class QComboBoxListenerInterface;

/// Tells listeners what the user does with a combo box; what a program sets is not told. Choosing the row that is shown
/// already is told as well: it may stand for a value that is not among the rows.
///
/// An InvalidPropertyValueException that a listener throws is shown to the user here, since no exception may pass
/// through Qt's event loop; the combo box keeps what was chosen.
class QComboBoxObservable
{
public:
    explicit QComboBoxObservable(QComboBox& comboBox);
    ~QComboBoxObservable();
    QComboBoxObservable(QComboBoxObservable const&) = delete;
    QComboBoxObservable& operator=(QComboBoxObservable const&) = delete;

    /// The observed combo box, null once it is gone.
    QComboBox* comboBox() const { return m_comboBox; }

    /// The listener must be removed before it goes. A listener is told once, however often it was added.
    void addListener(QComboBoxListenerInterface& listener);
    void removeListener(QComboBoxListenerInterface& listener);

private:
    template<typename Call>
    void tell(Call call);

    QPointer<QComboBox> m_comboBox;
    std::vector<QComboBoxListenerInterface*> m_listeners;
    QObject m_context; ///< ends the connections to the combo box
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::qwidgetobservable
