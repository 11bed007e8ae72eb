#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QStatusBar>

class QLabel;

namespace vantrix::app {

class ProgressBar;

/* The line at the bottom of the window: messages, the progress of long work, the place of the pointer. What of it is
 * shown follows the style values "Interface" / "ShowStatusLine", "ShowContinuousStatus" and "ShowCoordinates". */
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent);

    ProgressBar& progressBar() const { return *m_progressBar; }

    /* Stays until the next text; hints of menus only cover it for as long as they are shown. */
    void setText(const QString& text);

    void setCoordinates(const QString& text);

private:
    void followSettings();

    QLabel* m_text;
    ProgressBar* m_progressBar;
    QLabel* m_coordinates;
    sdk::OnIdleAfterStateChangeActionPerformer m_follower;
};

} // namespace vantrix::app
