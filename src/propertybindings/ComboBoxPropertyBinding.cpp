#include "propertybindings/ComboBoxPropertyBinding.h"

#include "propertybindings/LineEditPropertyBindingAbstract.h"
#include "propertybindings/PlainText.h"
#include "propertybindings/models/EditedValueSource.h"
#include "sdk/AppLock.h"

#include <QLineEdit>
#include <QListView>

#include <limits>
#include <optional>
#include <type_traits>

namespace vantrix::sdk::ui::dialogs::propertybindings {

namespace {

/// From this length on a combo box is not made as wide as its widest row: that would ask for every row's text.
constexpr int LONG_LIST = 1000;
constexpr int WIDTH_WITH_LONG_LIST = 24;

template<typename T>
QString textOfValue(T const& value)
{
    if constexpr (std::is_floating_point_v<T>) {
        return plainText(value);
    } else {
        return plainText(static_cast<int>(value));
    }
}

struct UpdateOnIdle
{
    template<typename... Rows>
    void operator()(Rows...) const
    {
        binding->updateValueOnIdle();
    }

    BindingInterface* binding;
};

/// A long list does not ask each row for its width.
void limitWidth(QComboBox& comboBox, int rows)
{
    if (rows >= LONG_LIST) {
        comboBox.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        comboBox.setMinimumContentsLength(WIDTH_WITH_LONG_LIST);
    }
}

void prepare(QComboBox& comboBox, int rows)
{
    comboBox.setInsertPolicy(QComboBox::NoInsert);
    if (comboBox.isEditable()) {
        // It would turn a typed 1 into the 1.5 of a row.
        comboBox.setCompleter(nullptr);
    }
    if (auto* list = qobject_cast<QListView*>(comboBox.view())) {
        list->setUniformItemSizes(true);
    }
    limitWidth(comboBox, rows);
}

void refuse(QComboBox& comboBox, QString const& text, std::string const& expected)
{
    showRefusal(InvalidPropertyValueException("\"" + text.toStdString() + "\" cannot be used here. Please enter " +
                                              expected + "."));
    returnToRefusedEdit(comboBox);
}

void select(QComboBox& comboBox, int row)
{
    comboBox.setCurrentIndex(row);
    if (comboBox.isEditable()) {
        // A text typed over the current row does not go away by making that row current.
        comboBox.setEditText(comboBox.itemData(row, Qt::EditRole).toString());
    }
}

} // namespace

template<typename T>
ComboBoxPropertyBinding<T>::ComboBoxPropertyBinding(QComboBox& comboBox,
                                                    boost::shared_ptr<PropertyAbstract<T>> property,
                                                    boost::shared_ptr<models::ListModelInterface<T> const> model,
                                                    ModelUpdateMode mode)
    : UIPropertyBindingAbstract<T>(std::move(property), BindingInterface::OnIdle)
    , m_comboBox(&comboBox)
    , m_modelOwner(std::move(model))
    , m_model(*m_modelOwner)
{
    init(mode);
}

template<typename T>
ComboBoxPropertyBinding<T>::ComboBoxPropertyBinding(QComboBox& comboBox,
                                                    propertymanager::UIStylePropertyAbstract<T>& property,
                                                    models::ListModelInterface<T> const& model, ModelUpdateMode mode)
    : UIPropertyBindingAbstract<T>(property, BindingInterface::OnIdle)
    , m_comboBox(&comboBox)
    , m_model(model)
{
    init(mode);
}

template<typename T>
ComboBoxPropertyBinding<T>::~ComboBoxPropertyBinding() = default;

template<typename T>
void ComboBoxPropertyBinding<T>::installValidator()
{
    // A list of doubles may name its rows and judges typed texts itself.
    if (!m_comboBox->lineEdit() || std::is_floating_point_v<T>) {
        return;
    }
    LineEditPropertyBindingAbstract<int>::ValidationInstaller::install(*m_comboBox->lineEdit());
}

template<typename T>
void ComboBoxPropertyBinding<T>::init(ModelUpdateMode mode)
{
    installValidator();
    UpdateOnIdle const update{this};
    if (mode == BindingInterface::DeferWhileBusy) {
        m_deferrer = std::make_unique<WidgetUpdateDeferrerOnBusy>(*m_comboBox, update);
    }
    m_modelConnections.add(m_model.connectToDataChangedSignal(update));
    m_modelConnections.add(m_model.connectToItemChangedSignal(update));
    m_modelConnections.add(m_model.connectToItemsInsertedSignal(update));
    m_modelConnections.add(m_model.connectToItemsRemovedSignal(update));

    prepare(*m_comboBox, m_model.size());
    m_listModel = std::make_unique<models::QListModel<T>>(m_model);
    m_comboBox->setModel(m_listModel.get());

    m_observable = std::make_unique<qwidgetobservable::QComboBoxObservable>(*m_comboBox);
    m_observable->addListener(m_listener);
    this->initWidget();
}

template<typename T>
void ComboBoxPropertyBinding<T>::updateWidget()
{
    if (!m_comboBox || (m_deferrer && m_deferrer->defer())) {
        return;
    }
    limitWidth(*m_comboBox, m_model.size()); // other data may have made it long
    T const value = this->property().value();
    int const row = m_model.indexOf(value);
    if (row >= 0) {
        select(*m_comboBox, row);
    } else if (m_comboBox->isEditable()) {
        m_comboBox->setEditText(textOfValue(value));
    } else if (m_model.size() > 0) {
        m_comboBox->setCurrentIndex(0);
    }
}

template<typename T>
void ComboBoxPropertyBinding<T>::takeEditedText()
{
    QString const text = m_comboBox->currentText();
    if (text == textOfValue(this->property().value())) {
        return;
    }
    std::optional<T> value;
    boost::signals2::scoped_connection connection;
    if (auto const* source = dynamic_cast<models::EditedValueSource<T> const*>(&m_model)) {
        // Connected for this edit only: a model may serve several combo boxes.
        connection = source->connectToValueEnteredSignal([&value](T const& entered) { value = entered; });
    }
    QModelIndex const edited = m_listModel->index(std::max(m_comboBox->currentIndex(), 0));
    if (!m_listModel->setData(edited, text)) {
        refuseEditedText(text);
    } else if (!value || this->setProperty(*value)) {
        this->updateWidget();
    }
}

template<typename T>
void ComboBoxPropertyBinding<T>::refuseEditedText(QString const& text)
{
    this->updateWidget();
    if (auto const* source = dynamic_cast<models::EditedValueSource<T> const*>(&m_model)) {
        refuse(*m_comboBox, text, source->expectedText());
    }
}

template<typename T>
void ComboBoxPropertyBinding<T>::QComboBoxListener::currentIndexChanged(
    int row, qwidgetobservable::QComboBoxObservable& /*comboBox*/)
{
    if (row < 0) {
        return;
    }
    AppLock const lock(false);
    m_binding.property().setValue(m_binding.m_model.get(row));
}

template<typename T>
void ComboBoxPropertyBinding<T>::QComboBoxListener::textEdited(qwidgetobservable::QComboBoxObservable& /*comboBox*/)
{
    AppLock const lock(false);
    m_binding.takeEditedText();
}

#define VX_INSTANTIATE_COMBOBOX_BINDING(Type) template class ComboBoxPropertyBinding<Type>;
VX_FOR_EACH_LISTED_TYPE(VX_INSTANTIATE_COMBOBOX_BINDING)
#undef VX_INSTANTIATE_COMBOBOX_BINDING

} // namespace vantrix::sdk::ui::dialogs::propertybindings
