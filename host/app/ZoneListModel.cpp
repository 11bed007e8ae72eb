#include "app/ZoneListModel.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "toolbox/ArgList.h"
#include "toolbox/HostString.h"
#include "toolbox/Set.h"

#include <algorithm>
#include <limits>

namespace vantrix::app {

namespace {

bool mayConcernZones(const toolbox::StateChangeEventInterface& event)
{
    switch (event.kind()) {
    case StateChange_View:
    case StateChange_MouseMode:
    case StateChange_VarsAltered:
    case StateChange_VarsAdded:
    case StateChange_VarName:
    case StateChange_Text:
        return false;
    case StateChange_Style:
        return event.styleParam(1) == "ActiveFieldMaps";
    default:
        return true;
    }
}

int zoneNumber(const QModelIndex& index)
{
    return index.row() + 1;
}

} // namespace

ZoneListModel::ZoneListModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_isShown(toolbox::StyleValue("ActiveFieldMaps"))
    , m_refresher(mayConcernZones, [this] { refresh(); })
{
    refresh();
}

int ZoneListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_zoneCount;
}

QVariant ZoneListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        char* name = nullptr;
        VtxUtilZoneGetName(zoneNumber(index), &name);
        return QStringLiteral("%1: %2")
            .arg(zoneNumber(index))
            .arg(QString::fromStdString(toolbox::takeHostString(name)));
    }
    if (role == Qt::CheckStateRole) {
        bool isShown = false;
        toolbox::ArgList arguments;
        toolbox::StyleValue::setupGetValueArgList(m_isShown.macroIDs(), zoneNumber(index), -1, arguments);
        toolbox::StyleValue::getFinalValue(&isShown, arguments);
        return isShown ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

Qt::ItemFlags ZoneListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren;
}

bool ZoneListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid()) {
        return false;
    }
    setShown({index}, value.toInt() == Qt::Checked);
    return true;
}

void ZoneListModel::setShown(const QModelIndexList& rows, bool isShown)
{
    if (rows.isEmpty()) {
        return;
    }
    toolbox::Set zones;
    for (const QModelIndex& row : rows) {
        zones.addMember(zoneNumber(row));
    }
    const sdk::AppLock lock;
    VtxUtilUndoSetStepName(isShown ? "Show Zones" : "Hide Zones");
    toolbox::ArgList arguments;
    toolbox::StyleValue::setupSetValueArgList(m_isShown.macroIDs(), &zones, -1, -1, AssignOp_Default, arguments);
    toolbox::StyleValue::setFinalValue(isShown, arguments);
}

void ZoneListModel::refresh()
{
    const int count = static_cast<int>(std::min<long>(VtxUtilDataSetGetNumZones(), std::numeric_limits<int>::max()));
    // Rows keep their place where zones come and go at the end, and with them the selection and the scrolled position.
    if (count > m_zoneCount) {
        beginInsertRows({}, m_zoneCount, count - 1);
        m_zoneCount = count;
        endInsertRows();
    } else if (count < m_zoneCount) {
        beginRemoveRows({}, count, m_zoneCount - 1);
        m_zoneCount = count;
        endRemoveRows();
    }
    if (count > 0) {
        Q_EMIT dataChanged(index(0), index(count - 1));
    }
}

} // namespace vantrix::app
