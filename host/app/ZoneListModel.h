#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"
#include "toolbox/CheckedStyleValue.h"

#include <QAbstractListModel>

namespace vantrix::app {

/*
 * The zones of the active frame's data set with a check mark at those that the plot shows. Nothing is kept a zone, so
 * that the number of zones costs nothing; a row is read when it is drawn.
 */
class ZoneListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ZoneListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /* Shows or hides one zone in the plot: one step of undo. */
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /* Shows or hides several zones as one step of undo. */
    void setShown(const QModelIndexList& rows, bool isShown);

private:
    void refresh();

    toolbox::CheckedStyleValue m_isShown;
    int m_zoneCount = 0;
    sdk::OnIdleAfterStateChangeActionPerformer m_refresher;
};

} // namespace vantrix::app
