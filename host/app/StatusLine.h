#pragma once

#include <QStatusBar>

class QLabel;

namespace vantrix::app {

class ProgressBar;

/* The line at the bottom of the window: messages, the progress of long work, the place of the pointer. */
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
    QLabel* m_text;
    ProgressBar* m_progressBar;
    QLabel* m_coordinates;
};

} // namespace vantrix::app
