#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QAbstractListModel>

namespace vantrix::app {

/* The line maps of the active frame: their names, their colours, a check mark at those that the plot shows. */
class LineMapItemModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit LineMapItemModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /* Shows or hides a line map, or names it: one step of undo. */
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    void refresh();

    int m_count = 0;
    sdk::OnIdleAfterStateChangeActionPerformer m_refresher;
};

} // namespace vantrix::app
