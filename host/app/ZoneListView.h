#pragma once

#include <QWidget>

class QLabel;
class QListView;
class QModelIndex;
class QSortFilterProxyModel;

namespace vantrix::app {

class ZoneListModel;

/*
 * The list of zones with a field that narrows it to names. The context menu shows or hides the selected
 * zones, or all that are listed.
 */
class ZoneListView : public QWidget
{
    Q_OBJECT

public:
    explicit ZoneListView(QWidget* parent);

private:
    void showMenu(const QPoint& position);
    void updateCount();
    void setShown(bool isShown, bool onlySelected);
    QList<QModelIndex> listed(bool onlySelected) const;

    ZoneListModel* m_model;
    QSortFilterProxyModel* m_filter;
    QListView* m_list;
    QLabel* m_count;
};

} // namespace vantrix::app
