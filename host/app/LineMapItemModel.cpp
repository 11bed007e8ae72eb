#include "app/LineMapItemModel.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "toolbox/HostString.h"
#include "toolbox/StyleValue.h"
#include "view/ColorMap.h"

namespace vantrix::app {

namespace {

bool mayConcernLineMaps(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() != StateChange_View && event.kind() != StateChange_MouseMode;
}

long lineMap(const QModelIndex& index)
{
    return index.row() + 1;
}

toolbox::StyleValue isShownStyle()
{
    return toolbox::StyleValue("ActiveLineMaps");
}

} // namespace

LineMapItemModel::LineMapItemModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_refresher(mayConcernLineMaps, [this] { refresh(); })
{
    refresh();
}

int LineMapItemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant LineMapItemModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: {
        char* name = nullptr;
        VtxUtilLineMapGetName(lineMap(index), &name);
        return QString::fromStdString(toolbox::takeHostString(name));
    }
    case Qt::DecorationRole: {
        long color = 0;
        toolbox::StyleValue("LineMap", "Lines", "Color").getValue(&color, lineMap(index));
        return view::indexedColor(color);
    }
    case Qt::CheckStateRole: {
        bool isShown = false;
        isShownStyle().getValue(&isShown, lineMap(index));
        return isShown ? Qt::Checked : Qt::Unchecked;
    }
    default:
        return {};
    }
}

Qt::ItemFlags LineMapItemModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsUserCheckable |
           Qt::ItemNeverHasChildren;
}

bool LineMapItemModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || (role != Qt::CheckStateRole && role != Qt::EditRole)) {
        return false;
    }
    const sdk::AppLock lock;
    if (role == Qt::EditRole) {
        VtxUtilUndoSetStepName("Name Line Map");
        toolbox::StyleValue("LineMap", "Name").setValue(value.toString().toStdString(), lineMap(index));
        return true;
    }
    const bool isShown = value.toInt() == Qt::Checked;
    VtxUtilUndoSetStepName(isShown ? "Show Line Map" : "Hide Line Map");
    isShownStyle().setValue(isShown, lineMap(index));
    return true;
}

void LineMapItemModel::refresh()
{
    const int count = static_cast<int>(VtxUtilLineMapGetCount());
    if (count > m_count) {
        beginInsertRows({}, m_count, count - 1);
        m_count = count;
        endInsertRows();
    } else if (count < m_count) {
        beginRemoveRows({}, count, m_count - 1);
        m_count = count;
        endRemoveRows();
    }
    if (count > 0) {
        Q_EMIT dataChanged(index(0), index(count - 1));
    }
}

} // namespace vantrix::app
