#include "propertybindings/models/QListModel.h"

#include <type_traits>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

template<typename T>
QListModel<T>::QListModel(ListModelInterface<T> const& model, QObject* parent)
    : QAbstractListModel(parent)
    , m_model(model)
{
    m_connections[0] = model.connectToDataChangedSignal([this] { resetAll(); });
    m_connections[1] = model.connectToItemChangedSignal([this](int row) {
        QModelIndex const changed = index(row);
        Q_EMIT dataChanged(changed, changed);
    });
    m_connections[2] = model.connectToItemsInsertedSignal([this](int first, int last) {
        beginInsertRows(QModelIndex(), first, last);
        endInsertRows();
    });
    m_connections[3] = model.connectToItemsRemovedSignal([this](int first, int last) {
        beginRemoveRows(QModelIndex(), first, last);
        endRemoveRows();
    });
}

template<typename T>
int QListModel<T>::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : m_model.size();
}

template<typename T>
QVariant QListModel<T>::data(QModelIndex const& index, int role) const
{
    // A view may hold an index from before the list became shorter.
    if (!index.isValid() || index.row() >= m_model.size()) {
        return {};
    }
    int const row = index.row();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return QString::fromStdString(m_model.getStr(row));
    case Qt::EditRole:
        return QString::fromStdString(m_model.isEditable() ? m_model.getStrForEdit(row) : m_model.getStr(row));
    case ListModelValueRole:
        if constexpr (std::is_floating_point_v<T>) {
            return QVariant(m_model.get(row));
        } else {
            return QVariant(static_cast<int>(m_model.get(row)));
        }
    default:
        return {};
    }
}

template<typename T>
bool QListModel<T>::setData(QModelIndex const& index, QVariant const& value, int /*role*/)
{
    return m_model.setEditedItem(value.toString().toStdString(), index.row());
}

template<typename T>
Qt::ItemFlags QListModel<T>::flags(QModelIndex const& index) const
{
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    if (!index.isValid() || index.row() >= m_model.size()) {
        return flags;
    }
    bool const header = m_model.isHeader(index.row());
    flags.setFlag(Qt::ItemIsEditable, m_model.isEditable() && !header);
    if (header) {
        flags.setFlag(Qt::ItemIsEnabled, false);
    }
    return flags;
}

template<typename T>
void QListModel<T>::resetAll()
{
    beginResetModel();
    int const rows = m_model.size();
    if (rows > 0) {
        Q_EMIT dataChanged(index(0), index(rows - 1));
    }
    endResetModel();
}

#define VX_INSTANTIATE_QLISTMODEL(Type) template class QListModel<Type>;
VX_FOR_EACH_LISTED_TYPE(VX_INSTANTIATE_QLISTMODEL)
#undef VX_INSTANTIATE_QLISTMODEL

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
