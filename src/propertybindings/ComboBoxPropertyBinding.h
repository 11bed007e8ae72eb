#pragma once

#include "propertybindings/ListedTypes.h"
#include "propertybindings/QComboBoxListenerInterface.h"
#include "propertybindings/QComboBoxObservable.h"
#include "propertybindings/UIPropertyBindingAbstract.h"
#include "propertybindings/WidgetUpdateDeferrerOnBusy.h"
#include "propertybindings/models/QListModel.h"
#include "sdk/SignalConnectionCollection.h"

#include <QComboBox>
#include <QPointer>

#include <memory>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a combo box to a property: a list model gives the rows, the property holds the value of the chosen one. Changes
/// of the property and of the list reach the combo box on the next idle turn.
///
/// A value that is not among the rows is shown as text by an editable combo box. Any other shows its first row while
/// the property keeps its value; the user sets the first row's value by choosing it.
///
/// A text that the user types never becomes a row. It is handed to the list model (setEditedItem()); the value that a
/// models::EditedValueSource makes of it is set on the property, and a text that the model does not accept is refused
/// with a message.
template<typename T>
class ComboBoxPropertyBinding : public virtual UIPropertyBindingAbstract<T>
{
public:
    using typename BindingInterface::ModelUpdateMode;

    ComboBoxPropertyBinding(QComboBox& comboBox, boost::shared_ptr<PropertyAbstract<T>> property,
                            boost::shared_ptr<models::ListModelInterface<T> const> model, ModelUpdateMode mode);

    /// @param model  must outlive the binding
    ComboBoxPropertyBinding(QComboBox& comboBox, propertymanager::UIStylePropertyAbstract<T>& property,
                            models::ListModelInterface<T> const& model, ModelUpdateMode mode);

    ~ComboBoxPropertyBinding() override;

    QComboBox* widget() const override { return m_comboBox; }
    void updateWidget() override;

private:
    class QComboBoxListener : public qwidgetobservable::QComboBoxListenerInterface
    {
    public:
        explicit QComboBoxListener(ComboBoxPropertyBinding& binding)
            : m_binding(binding)
        {}

        /// @throws InvalidPropertyValueException when the property refuses the row's value
        void currentIndexChanged(int row, qwidgetobservable::QComboBoxObservable& comboBox) override;
        void textEdited(qwidgetobservable::QComboBoxObservable& comboBox) override;

    private:
        ComboBoxPropertyBinding& m_binding;
    };

    void installValidator();
    void init(ModelUpdateMode mode);
    void takeEditedText();
    void refuseEditedText(QString const& text);

    QPointer<QComboBox> m_comboBox;
    boost::shared_ptr<models::ListModelInterface<T> const> m_modelOwner;
    models::ListModelInterface<T> const& m_model;
    std::unique_ptr<models::QListModel<T>> m_listModel;
    SignalConnectionCollection m_modelConnections;
    std::unique_ptr<qwidgetobservable::QComboBoxObservable> m_observable;
    QComboBoxListener m_listener{*this};
    std::unique_ptr<WidgetUpdateDeferrerOnBusy> m_deferrer;
};

#define VX_DECLARE_COMBOBOX_BINDING(Type) extern template class ComboBoxPropertyBinding<Type>;
VX_FOR_EACH_LISTED_TYPE(VX_DECLARE_COMBOBOX_BINDING)
#undef VX_DECLARE_COMBOBOX_BINDING

} // namespace vantrix::sdk::ui::dialogs::propertybindings
