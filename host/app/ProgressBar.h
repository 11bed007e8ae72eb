#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace vantrix::app {

/*
 * Shows in the status line how far long work is, with a button to cancel it; Escape cancels, too. While work is shown
 * the rest of the application repaints itself but takes no input.
 */
class ProgressBar : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressBar(QWidget* parent);

    /* As FrontEnd::reportProgress(); handles waiting events, though not at every call. */
    bool report(const QString& task, double fraction);

    /* Shows nothing while it is quiet; Escape still cancels. */
    void setQuiet(bool isQuiet);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void begin(const QString& task);
    void finish();

    QLabel* m_task;
    QProgressBar* m_bar;
    QPushButton* m_cancel;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sinceEvents;
    QTimer m_watchdog;
    bool m_isQuiet = false;
    bool m_isAtWork = false;
    bool m_isCancelled = false;
    bool m_isHandlingEvents = false;
};

} // namespace vantrix::app
