#pragma once

#include "api/VtxEnumerations.h"
#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QToolBar>

class QActionGroup;

namespace vantrix::app {

/* The mouse modes as buttons, of which one is down; modes that make no sense for the plot are disabled. */
class MouseModeBar : public QToolBar
{
    Q_OBJECT

public:
    explicit MouseModeBar(QWidget* parent);

    /* For a menu with the same modes. */
    QList<QAction*> modeActions() const;

private:
    void setMode(MouseMode_e mode);
    void update();

    QActionGroup* m_modes;
    sdk::OnIdleAfterStateChangeActionPerformer m_updater;
};

} // namespace vantrix::app
