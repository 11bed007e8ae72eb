#pragma once

#include <QObject>
#include <QPointer>

class QAbstractItemView;

namespace vantrix::sdk::ui::common {

/// Copies a table to the clipboard as text: a line for the header and one for each row, cells parted by tabs. Of a
/// selection of several cells only the rows and columns that it reaches are copied, else the whole table. The table
/// gets an action "Copy" for it, with the usual key.
class TableCopyHandler : public QObject
{
    Q_OBJECT

public:
    /// @param table  not null; owns the handler
    explicit TableCopyHandler(QAbstractItemView* table);

    /// The text that would be copied.
    QString text() const;

public Q_SLOTS:
    void copyToClipboard();

private:
    QPointer<QAbstractItemView> m_table;
};

} // namespace vantrix::sdk::ui::common
