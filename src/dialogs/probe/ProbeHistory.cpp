#include "dialogs/probe/ProbeHistory.h"

#include "api/VtxUtil.h"
#include "dialogs/probe/ProbeTables.h"
#include "sdk/AppLock.h"

#include <algorithm>

namespace vantrix::sdk::ui::dialogs {

ProbeHistory& ProbeHistory::getInstance()
{
    static ProbeHistory history;
    return history;
}

void ProbeHistory::addLastProbe()
{
    std::optional<ProbeRecord> found = ProbeRecord::ofLastProbe();
    if (!found) {
        return;
    }
    found->number = ++m_count;
    addVariablesOf(*found);
    dropOldest();
    int const row = rowCount();
    beginInsertRows({}, row, row);
    m_records.push_back(std::move(*found));
    endInsertRows();
}

void ProbeHistory::addVariablesOf(ProbeRecord const& record)
{
    for (QString const& name : record.names) {
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
    VtxProbeInfoHandle last = VtxUtilProbeInfoGet();
    long const dataSet = VtxUtilDataSetGetUniqueID();
    int probed = 0;
    int lost = 0;
    for (ProbeRecord& record : m_records) {
        if (record.dataSet != dataSet) {
            continue;
        }
        ++probed;
        std::optional<ProbeRecord> again;
        if (VtxUtilProbePerform(record.info.get(), nullptr)) {
            again = ProbeRecord::ofLastProbe();
        }
        if (!again) {
            ++lost;
            continue;
        }
        again->number = record.number;
        again->isPinned = record.isPinned;
        record = std::move(*again);
        addVariablesOf(record);
    }
    if (!VtxUtilProbePerform(last, nullptr)) {
        VtxUtilProbeInfoRestore(last);
    }
    VtxUtilProbeInfoDealloc(&last);
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
        auto const& coordinate = record.position[static_cast<std::size_t>(column - XColumn)];
        return coordinate ? probetables::exactText(*coordinate) : QString();
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
    QStringList const names = {tr("Probe"), tr("Item"), tr("Position X"), tr("Position Y"), tr("Position Z")};
    return section < FirstValueColumn ? names[section]
                                      : m_variables[static_cast<std::size_t>(section - FirstValueColumn)];
}

Qt::ItemFlags ProbeHistory::flags(QModelIndex const& index) const
{
    Qt::ItemFlags const flags = QAbstractTableModel::flags(index);
    return index.column() == NumberColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

} // namespace vantrix::sdk::ui::dialogs
