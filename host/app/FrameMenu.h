#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QObject>

class QAction;
class QMenu;

namespace vantrix::app {

/* The actions on the active frame: create one with the mouse or on the same data, choose its data, pop, push, delete.
 */
class FrameMenu : public QObject
{
    Q_OBJECT

public:
    /* Adds the actions to a menu, which owns this object. */
    explicit FrameMenu(QMenu* menu);

private:
    void update();
    void listDataSets();

    QAction* m_onSameData;
    QMenu* m_dataSets;
    QAction* m_pop;
    QAction* m_push;
    QAction* m_delete;
    sdk::OnIdleAfterStateChangeActionPerformer m_updater;
};

} // namespace vantrix::app
