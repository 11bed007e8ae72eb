#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QObject>

class QAction;
class QMenu;

namespace vantrix::view {
class WorkArea;
}

namespace vantrix::app {

/* Texts and geometries that are put into a frame with the mouse. */
class InsertMenu : public QObject
{
    Q_OBJECT

public:
    /* Adds the actions to a menu, which owns this object. */
    InsertMenu(QMenu* menu, view::WorkArea& workArea);

private:
    void update();

    QList<QAction*> m_actions;
    sdk::OnIdleAfterStateChangeActionPerformer m_updater;
};

} // namespace vantrix::app
