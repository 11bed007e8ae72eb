#pragma once

#include "dialogs/probe/ProbeRecord.h"

#include <QAbstractTableModel>

#include <vector>

namespace vantrix::sdk::ui::dialogs {

/// The probes of the session as a table, the last one at the end: its number and whether it is pinned, the item, the
/// position, the values. Only as many as `largestCount` are kept; those that are pinned always stay.
class ProbeHistory : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NumberColumn,
        ItemColumn,
        XColumn,
        YColumn,
        ZColumn,
        FirstValueColumn
    };
    static constexpr int largestCount = 1000;

    /// The one of the process.
    static ProbeHistory& getInstance();

    /// Adds what the host's last probe found.
    void addLastProbe();

    /// Probes those of the active frame's data set again, on the plot as it is now. One that finds nothing any more
    /// keeps its values. The host's last probe is what it was.
    /// @returns how many were probed, and how many of them found nothing
    std::pair<int, int> probeAgain();

    void remove(std::vector<int> rows);

    ProbeRecord const& record(int row) const { return m_records[static_cast<std::size_t>(row)]; }

    /// The variables and line maps that any of the probes has a value of, in the order of the columns.
    std::vector<QString> const& variables() const { return m_variables; }

    int rowCount(QModelIndex const& parent = {}) const override;
    int columnCount(QModelIndex const& parent = {}) const override;
    QVariant data(QModelIndex const& index, int role) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(QModelIndex const& index) const override;

private:
    ProbeHistory() = default;
    void addVariablesOf(ProbeRecord const& record);
    void dropOldest();

    std::vector<ProbeRecord> m_records;
    std::vector<QString> m_variables;
    long m_count = 0;
};

} // namespace vantrix::sdk::ui::dialogs
