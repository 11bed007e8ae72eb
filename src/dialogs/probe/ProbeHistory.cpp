#include "dialogs/probe/ProbeHistory.h"

#include "api/VtxUtil.h"
#include "dialogs/probe/ProbeQueries.h"
#include "dialogs/probe/ProbeTables.h"
#include "sdk/AppLock.h"
#include "toolbox/HostString.h"

#include <algorithm>

namespace vantrix::sdk::ui::dialogs {

namespace {

std::shared_ptr<VtxProbeInfo> ownedInfo()
{
    return {VtxUtilProbeInfoGet(), [](VtxProbeInfoHandle info) { VtxUtilProbeInfoDealloc(&info); }};
}

} // namespace

ProbeHistory& ProbeHistory::getInstance()
{
    static ProbeHistory history;
    return history;
}

ProbeRecord ProbeHistory::lastProbe()
{
    ProbeRecord record;
    record.dataSet = VtxUtilDataSetGetUniqueID();
    record.item = QString::fromStdString(GetProbedItemName());
    VtxUtilProbeFieldGetPosition(&record.position[0], &record.position[1], &record.position[2]);
    for (VarValue_s const& value : GetFieldVarValuesForLastProbe()) {
        if (value.isValid) {
            char* name = nullptr;
            VtxUtilVarGetName(value.variable, &name);
            record.values[QString::fromStdString(toolbox::takeHostString(name))] = value.value;
        }
    }
    record.info = ownedInfo();
    return record;
}

void ProbeHistory::addLastProbe()
{
    AppLock const lock(false);
    if (VtxUtilProbeFieldGetZone() == 0) {
        return;
    }
    ProbeRecord record = lastProbe();
    record.number = ++m_count;
    addVariablesOf(record);
    dropOldest();
    int const row = rowCount();
    beginInsertRows({}, row, row);
    m_records.push_back(std::move(record));
    endInsertRows();
}

void ProbeHistory::addVariablesOf(ProbeRecord const& record)
{
    for (auto const& [name, value] : record.values) {
        if (std::find(m_variables.begin(), m_variables.end(), name) == m_variables.end()) {
            beginInsertColumns({}, columnCount(), columnCount());
            m_variables.push_back(name);
            endInsertColumns();
        }
    }
}

void ProbeHistory::dropOldest()
{
    if (rowCount() < largestCount) {
        return;
    }
    auto const oldest =
        std::find_if(m_records.begin(), m_records.end(), [](ProbeRecord const& record) { return !record.isPinned; });
    if (oldest != m_records.end()) {
        remove({static_cast<int>(oldest - m_records.begin())});
    }
}

std::pair<int, int> ProbeHistory::probeAgain()
{
    AppLock const lock(false);
    std::shared_ptr<VtxProbeInfo> const last = ownedInfo();
    long const dataSet = VtxUtilDataSetGetUniqueID();
    int probed = 0;
    int lost = 0;
    for (ProbeRecord& record : m_records) {
        if (record.dataSet != dataSet) {
            continue;
        }
        ++probed;
        if (!VtxUtilProbePerform(record.info.get(), nullptr) || VtxUtilProbeFieldGetZone() == 0) {
            ++lost;
            continue;
        }
        ProbeRecord again = lastProbe();
        again.number = record.number;
        again.isPinned = record.isPinned;
        record = std::move(again);
        addVariablesOf(record);
    }
    VtxUtilProbePerform(last.get(), nullptr);
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
    return {probed, lost};
}

void ProbeHistory::remove(std::vector<int> rows)
{
    std::sort(rows.rbegin(), rows.rend());
    for (int const row : rows) {
        beginRemoveRows({}, row, row);
        m_records.erase(m_records.begin() + row);
        endRemoveRows();
    }
}

int ProbeHistory::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int ProbeHistory::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : FirstValueColumn + static_cast<int>(m_variables.size());
}

QVariant ProbeHistory::data(QModelIndex const& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    ProbeRecord const& record = m_records[static_cast<std::size_t>(index.row())];
    int const column = index.column();
    if (role == Qt::CheckStateRole && column == NumberColumn) {
        return record.isPinned ? Qt::Checked : Qt::Unchecked;
    }
    if (role == Qt::ToolTipRole && column == NumberColumn) {
        return tr("Tick to keep this probe when old ones are dropped");
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (column == NumberColumn) {
        return QString::number(record.number);
    }
    if (column == ItemColumn) {
        return record.item;
    }
    if (column < FirstValueColumn) {
        return probetables::exactText(record.position[static_cast<std::size_t>(column - XColumn)]);
    }
    auto const value = record.values.find(m_variables[static_cast<std::size_t>(column - FirstValueColumn)]);
    return value != record.values.end() ? probetables::exactText(value->second) : QString();
}

bool ProbeHistory::setData(QModelIndex const& index, QVariant const& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != NumberColumn) {
        return false;
    }
    m_records[static_cast<std::size_t>(index.row())].isPinned = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

QVariant ProbeHistory::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    QStringList const names = {tr("Probe"), tr("Item"), tr("X"), tr("Y"), tr("Z")};
    return section < FirstValueColumn ? names[section]
                                      : m_variables[static_cast<std::size_t>(section - FirstValueColumn)];
}

Qt::ItemFlags ProbeHistory::flags(QModelIndex const& index) const
{
    Qt::ItemFlags const flags = QAbstractTableModel::flags(index);
    return index.column() == NumberColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

} // namespace vantrix::sdk::ui::dialogs
