#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QObject>

class QAction;
class QActionGroup;
class QMenu;

namespace vantrix::app {

/* The pages of the document: new, delete, next, previous, and one entry for each page. */
class PageMenu : public QObject
{
    Q_OBJECT

public:
    /* Adds the actions to a menu, which owns this object. */
    explicit PageMenu(QMenu* menu);

private:
    void update();
    void addPage(long position);

    QMenu* m_menu;
    QAction* m_delete;
    QAction* m_next;
    QAction* m_previous;
    QActionGroup* m_pages;
    sdk::OnIdleAfterStateChangeActionPerformer m_updater;
};

} // namespace vantrix::app
