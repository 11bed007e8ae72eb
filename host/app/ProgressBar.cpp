#include "app/ProgressBar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

/* Work that is shorter shows nothing: a flash tells nobody anything. */
const int showAfterMilliseconds = 250;
const int eventsEveryMilliseconds = 40;

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::Close:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

ProgressBar::ProgressBar(QWidget* parent)
    : QWidget(parent)
    , m_task(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancel(new QPushButton(tr("Cancel"), this))
{
    setObjectName(u"progress"_s);
    m_cancel->setObjectName(u"progressCancelButton"_s);
    m_cancel->setToolTip(tr("Stop the work under way (Escape)"));
    m_bar->setRange(0, 100);
    m_bar->setFixedWidth(160);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_task);
    layout->addWidget(m_bar);
    layout->addWidget(m_cancel);
    connect(m_cancel, &QPushButton::clicked, this, [this] { m_isCancelled = true; });
    // Work that was cancelled or failed does not report its end: it is over when the event loop has come back.
    m_watchdog.setInterval(eventsEveryMilliseconds);
    connect(&m_watchdog, &QTimer::timeout, this, [this] {
        if (!m_isHandlingEvents) {
            finish();
        }
    });
    hide();
}

bool ProgressBar::report(const QString& task, double fraction)
{
    if (fraction > 1.0) {
        finish();
        return true;
    }
    if (!m_isAtWork) {
        begin(task);
    }
    if (!m_isCancelled && !m_isHandlingEvents && m_sinceEvents.elapsed() >= eventsEveryMilliseconds) {
        m_bar->setValue(static_cast<int>(100.0 * std::clamp(fraction, 0.0, 1.0)));
        if (!isVisible() && !m_isQuiet && m_sinceBegin.elapsed() >= showAfterMilliseconds) {
            show();
        }
        m_isHandlingEvents = true;
        QCoreApplication::processEvents();
        m_isHandlingEvents = false;
        m_sinceEvents.restart();
    }
    return !m_isCancelled;
}

void ProgressBar::setQuiet(bool isQuiet)
{
    m_isQuiet = isQuiet;
    if (isQuiet) {
        hide();
    }
}

void ProgressBar::begin(const QString& task)
{
    m_isAtWork = true;
    m_isCancelled = false;
    m_task->setText(task);
    m_bar->setValue(0);
    m_sinceBegin.start();
    m_sinceEvents.start();
    m_watchdog.start();
    qApp->installEventFilter(this);
}

void ProgressBar::finish()
{
    if (!m_isAtWork) {
        return;
    }
    m_isAtWork = false;
    m_watchdog.stop();
    qApp->removeEventFilter(this);
    hide();
}

bool ProgressBar::eventFilter(QObject* watched, QEvent* event)
{
    if (!isInput(event->type())) {
        return false;
    }
    // Shortcuts go straight to their actions. All other input reaches a window first, which hands it to its widgets.
    if (event->type() == QEvent::Shortcut) {
        return true;
    }
    if (!watched->isWidgetType()) {
        return false;
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        m_isCancelled = true;
    }
    if (event->type() == QEvent::Close) {
        m_isCancelled = true;
        event->ignore();
    }
    return watched != m_cancel;
}

} // namespace vantrix::app
