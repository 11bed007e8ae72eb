#include "propertybindings/ListViewPropertySynchronizer.h"

#include "propertybindings/EditRefusal.h"
#include "sdk/AppLock.h"

#include <algorithm>

namespace vantrix::sdk::ui::dialogs::propertybindings {

namespace {

/// Sets a flag for a scope and clears it, however the scope ends.
class ScopedFlag
{
public:
    explicit ScopedFlag(bool& flag)
        : m_flag(flag)
    {
        m_flag = true;
    }
    ~ScopedFlag() { m_flag = false; }
    ScopedFlag(ScopedFlag const&) = delete;
    ScopedFlag& operator=(ScopedFlag const&) = delete;

private:
    bool& m_flag;
};

/// The rows of a selection as ranges in the order of the list, neighbours joined.
std::vector<std::pair<int, int>> runsOf(QItemSelection const& selection)
{
    std::vector<std::pair<int, int>> runs;
    runs.reserve(static_cast<std::size_t>(selection.size()));
    for (QItemSelectionRange const& range : selection) {
        if (range.isValid()) {
            runs.emplace_back(range.top(), range.bottom());
        }
    }
    std::sort(runs.begin(), runs.end());
    std::vector<std::pair<int, int>> joined;
    for (auto const& run : runs) {
        if (!joined.empty() && run.first <= joined.back().second + 1) {
            joined.back().second = std::max(joined.back().second, run.second);
        } else {
            joined.push_back(run);
        }
    }
    return joined;
}

} // namespace

template<typename T>
ListViewPropertySynchronizer<T>::ListViewPropertySynchronizer(QListView& view,
                                                              boost::shared_ptr<PropertyAbstract<T>> property,
                                                              boost::shared_ptr<Model const> model,
                                                              BindingInterface::WidgetUpdateMode_e updateMode)
    : m_view(&view)
    , m_propertyOwner(std::move(property))
    , m_property(*m_propertyOwner)
    , m_modelOwner(std::move(model))
    , m_model(*m_modelOwner)
    , m_synchronizeOnIdle([this] { synchronizePropertyAndSelection(); })
    , m_updateMode(updateMode)
{
    setupModel();
}

template<typename T>
ListViewPropertySynchronizer<T>::ListViewPropertySynchronizer(QListView& view,
                                                              propertymanager::UIStylePropertyAbstract<T>& property,
                                                              Model const& model,
                                                              BindingInterface::WidgetUpdateMode_e updateMode)
    : m_view(&view)
    , m_property(property)
    , m_uiProperty(&property)
    , m_model(model)
    , m_synchronizeOnIdle([this] { synchronizePropertyAndSelection(); })
    , m_updateMode(updateMode)
{
    setupModel();
    m_connections.add(m_uiProperty->connectToVisibilityChangedSignal([this] { updateVisibility(); }));
    m_connections.add(m_uiProperty->connectToSensitivityChangedSignal([this] { updateSensitivity(); }));
    if (!m_uiProperty->isVisible()) {
        updateVisibility();
    }
    if (!m_uiProperty->isSensitive()) {
        updateSensitivity();
    }
}

template<typename T>
ListViewPropertySynchronizer<T>::~ListViewPropertySynchronizer() = default;

template<typename T>
void ListViewPropertySynchronizer<T>::setupModel()
{
    // Before the Qt model: rows that it takes away are deselected by Qt, which is no wish of the user.
    auto const aboutToChange = [this](auto...) { m_isUpdating = true; };
    m_connections.add(m_model.connectToDataChangedSignal(aboutToChange));
    m_connections.add(m_model.connectToItemChangedSignal(aboutToChange));
    m_connections.add(m_model.connectToItemsInsertedSignal(aboutToChange));
    m_connections.add(m_model.connectToItemsRemovedSignal(aboutToChange));

    m_listModel = std::make_unique<models::QListModel<Value>>(m_model);
    m_view->setUniformItemSizes(true);
    m_view->setModel(m_listModel.get());

    // Behind the Qt model, whose rows are asked for.
    auto const changed = [this](auto...) { preserveSelectionOnModelChange(); };
    m_connections.add(m_model.connectToDataChangedSignal(changed));
    m_connections.add(m_model.connectToItemChangedSignal(changed));
    m_connections.add(m_model.connectToItemsInsertedSignal(changed));
    m_connections.add(m_model.connectToItemsRemovedSignal(changed));

    m_connections.add(m_property.connectToValueChangedSignal([this](T const&) { updateWidgetFromProperty(); }));
    updateWidgetFromProperty();
    QObject::connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, &m_context,
                     [this] { updatePropertyFromWidget(); });
}

template<typename T>
void ListViewPropertySynchronizer<T>::updateWidgetFromProperty()
{
    if (!m_view) {
        return;
    }
    ScopedFlag const updating(m_isUpdating);
    setSelectionForPropertyValues(m_property.value());
}

template<typename T>
void ListViewPropertySynchronizer<T>::updatePropertyFromWidget()
{
    if (m_isUpdating || !m_view) {
        return;
    }
    AppLock const lock(false);
    try {
        m_property.setValue(selectedValues());
    } catch (InvalidPropertyValueException const& exception) {
        showRefusal(exception);
        updateWidgetFromProperty();
    }
}

template<typename T>
void ListViewPropertySynchronizer<T>::synchronizePropertyAndSelection()
{
    m_isUpdating = false;
    updateWidgetFromProperty();
    updatePropertyFromWidget();
}

template<typename T>
void ListViewPropertySynchronizer<T>::preserveSelectionOnModelChange()
{
    m_isUpdating = true;
    if (m_updateMode == BindingInterface::OnIdle) {
        m_synchronizeOnIdle.enableNotification();
    } else {
        synchronizePropertyAndSelection();
    }
}

template<typename T>
void ListViewPropertySynchronizer<T>::setSelectionForPropertyValues(T const& values)
{
    QItemSelectionModel& selectionModel = *m_view->selectionModel();
    QItemSelection const wanted = selectionFor(values);
    if (runsOf(wanted) == runsOf(selectionModel.selection())) {
        return;
    }
    // Not ClearAndSelect: Qt compares every old range with every new one, which for a selection of many separate rows
    // takes minutes.
    QModelIndex const current = selectionModel.currentIndex();
    selectionModel.reset();
    selectionModel.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    selectionModel.select(wanted, QItemSelectionModel::Select);
    m_view->viewport()->update();
}

template<typename T>
QItemSelection ListViewPropertySynchronizer<T>::selectionFor(T const& values) const
{
    QItemSelection selection;
    if (values.empty()) {
        return selection;
    }
    int const rows = m_model.size();
    int firstOfRun = -1;
    for (int row = 0; row <= rows; ++row) {
        bool const isSelected = row < rows && values.contains(m_model.get(row)) && !m_model.isHeader(row);
        if (isSelected && firstOfRun < 0) {
            firstOfRun = row;
        } else if (!isSelected && firstOfRun >= 0) {
            selection.append(QItemSelectionRange(m_listModel->index(firstOfRun), m_listModel->index(row - 1)));
            firstOfRun = -1;
        }
    }
    return selection;
}

template<typename T>
T ListViewPropertySynchronizer<T>::selectedValues() const
{
    T values;
    for (auto const& [first, last] : runsOf(m_view->selectionModel()->selection())) {
        for (int row = first; row <= last; ++row) {
            if (!m_model.isHeader(row)) {
                values.insert(values.end(), m_model.get(row));
            }
        }
    }
    return values;
}

template<typename T>
void ListViewPropertySynchronizer<T>::updateVisibility()
{
    if (m_view && m_uiProperty) {
        m_view->setVisible(m_uiProperty->isVisible());
    }
}

template<typename T>
void ListViewPropertySynchronizer<T>::updateSensitivity()
{
    if (m_view && m_uiProperty) {
        m_view->setEnabled(m_uiProperty->isSensitive());
    }
}

template class ListViewPropertySynchronizer<std::set<int>>;

} // namespace vantrix::sdk::ui::dialogs::propertybindings
