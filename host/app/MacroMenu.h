#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QObject>

class QAction;
class QMenu;
class QWidget;

namespace vantrix::app {

/* Recording and playing macros. */
class MacroMenu : public QObject
{
    Q_OBJECT

public:
    /* Adds the actions to a menu, which owns this object; the window is the parent of file dialogs. */
    MacroMenu(QMenu* menu, QWidget& window);

    /* The suffix of macro files, with the dot. */
    static QString suffix();

private:
    void record();
    void stop();
    void play();
    void update();

    QWidget& m_window;
    QAction* m_record;
    QAction* m_stop;
    QAction* m_play;
    sdk::OnIdleAfterStateChangeActionPerformer m_updater;
};

} // namespace vantrix::app
