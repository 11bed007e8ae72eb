#include "ui/TableCopyHandler.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

#include <numeric>
#include <set>
#include <vector>

namespace vantrix::sdk::ui::common {

namespace {

/// Line ends and tabs within a cell would make other cells of it.
QString inOneCell(QVariant const& value)
{
    return value.toString().simplified();
}

std::vector<int> allBelow(int count)
{
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

} // namespace

TableCopyHandler::TableCopyHandler(QAbstractItemView* table)
    : QObject(table)
    , m_table(table)
{
    auto* const copy = new QAction(tr("Copy"), table);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &TableCopyHandler::copyToClipboard);
    table->addAction(copy);
}

QString TableCopyHandler::text() const
{
    QAbstractItemModel const& model = *m_table->model();
    std::vector<int> rows = allBelow(model.rowCount());
    std::vector<int> columns = allBelow(model.columnCount());
    QModelIndexList const selected = m_table->selectionModel()->selectedIndexes();
    if (selected.size() > 1) {
        std::set<int> selectedRows;
        std::set<int> selectedColumns;
        for (QModelIndex const& index : selected) {
            selectedRows.insert(index.row());
            selectedColumns.insert(index.column());
        }
        rows.assign(selectedRows.begin(), selectedRows.end());
        columns.assign(selectedColumns.begin(), selectedColumns.end());
    }
    QStringList lines;
    QStringList cells;
    for (int const column : columns) {
        cells << inOneCell(model.headerData(column, Qt::Horizontal));
    }
    lines << cells.join(u'\t');
    for (int const row : rows) {
        cells.clear();
        for (int const column : columns) {
            cells << inOneCell(model.index(row, column).data());
        }
        lines << cells.join(u'\t');
    }
    return lines.join(u'\n') + u'\n';
}

void TableCopyHandler::copyToClipboard()
{
    if (m_table) {
        QGuiApplication::clipboard()->setText(text());
    }
}

} // namespace vantrix::sdk::ui::common
