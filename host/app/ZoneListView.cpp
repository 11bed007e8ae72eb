#include "app/ZoneListView.h"

#include "app/ZoneListModel.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace vantrix::app {

using namespace Qt::StringLiterals;

ZoneListView::ZoneListView(QWidget* parent)
    : QWidget(parent)
    , m_model(new ZoneListModel(this))
    , m_filter(new QSortFilterProxyModel(this))
    , m_list(new QListView(this))
    , m_count(new QLabel(this))
{
    m_filter->setSourceModel(m_model);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_list->setObjectName(u"zoneList"_s);
    m_list->setModel(m_filter);
    m_list->setUniformItemSizes(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list, &QWidget::customContextMenuRequested, this, &ZoneListView::showMenu);

    auto* filterField = new QLineEdit(this);
    filterField->setObjectName(u"zoneFilter"_s);
    filterField->setPlaceholderText(tr("Find zones by name"));
    filterField->setClearButtonEnabled(true);
    connect(filterField, &QLineEdit::textChanged, m_filter, &QSortFilterProxyModel::setFilterFixedString);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(filterField);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_count);

    // Of both models: the filter's rows go before those of the model that it filters.
    for (const QAbstractItemModel* model : std::initializer_list<const QAbstractItemModel*>{m_model, m_filter}) {
        connect(model, &QAbstractItemModel::rowsInserted, this, &ZoneListView::updateCount);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &ZoneListView::updateCount);
    }
    connect(m_filter, &QAbstractItemModel::modelReset, this, &ZoneListView::updateCount);
    updateCount();
}

void ZoneListView::showMenu(const QPoint& position)
{
    const bool hasSelection = m_list->selectionModel()->hasSelection();
    QMenu menu(this);
    menu.addAction(tr("&Show Selected"), this, [this] { setShown(true, true); })->setEnabled(hasSelection);
    menu.addAction(tr("&Hide Selected"), this, [this] { setShown(false, true); })->setEnabled(hasSelection);
    menu.addSeparator();
    menu.addAction(tr("Show &All Listed"), this, [this] { setShown(true, false); });
    menu.addAction(tr("Hide A&ll Listed"), this, [this] { setShown(false, false); });
    menu.exec(m_list->viewport()->mapToGlobal(position));
}

void ZoneListView::updateCount()
{
    const int all = m_model->rowCount();
    const int listed = m_filter->rowCount();
    if (listed < all) {
        m_count->setText(tr("%1 of %2 zones").arg(listed).arg(all));
    } else {
        m_count->setText(all == 1 ? tr("1 zone") : tr("%1 zones").arg(all));
    }
}

void ZoneListView::setShown(bool isShown, bool onlySelected)
{
    m_model->setShown(listed(onlySelected), isShown);
}

QModelIndexList ZoneListView::listed(bool onlySelected) const
{
    QModelIndexList rows;
    if (onlySelected) {
        for (const QModelIndex& row : m_list->selectionModel()->selectedRows()) {
            rows << m_filter->mapToSource(row);
        }
        return rows;
    }
    for (int row = 0; row < m_filter->rowCount(); ++row) {
        rows << m_filter->mapToSource(m_filter->index(row, 0));
    }
    return rows;
}

} // namespace vantrix::app
