#include "app/WindowFrontEnd.h"

#include "app/HelpWindow.h"
#include "app/ProgressBar.h"
#include "app/StatusLine.h"

#include <QApplication>
#include <QMessageBox>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(MessageBox_e type)
{
    switch (type) {
    case MessageBox_Error:
        return QMessageBox::Critical;
    case MessageBox_Warning:
        return QMessageBox::Warning;
    case MessageBox_Information:
        return QMessageBox::Information;
    case MessageBox_Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

/* A message belongs to the window that the user is looking at: a dialog of the plot, or the plot itself. */
QWidget* parentOfMessages(QWidget& window)
{
    QWidget* active = QApplication::activeModalWidget();
    if (active == nullptr) {
        active = QApplication::activeWindow();
    }
    return active != nullptr ? active : &window;
}

} // namespace

WindowFrontEnd::WindowFrontEnd(Parts parts)
    : m_parts(std::move(parts))
{}

WindowFrontEnd::~WindowFrontEnd()
{
    for (; m_busyCount > 0; --m_busyCount) {
        QApplication::restoreOverrideCursor();
    }
}

bool WindowFrontEnd::showMessage(const std::string& text, MessageBox_e type)
{
    const auto buttons = type == MessageBox_Question ? QMessageBox::Yes | QMessageBox::No
                                                     : QMessageBox::StandardButtons(QMessageBox::Ok);
    QMessageBox box(iconOf(type), QApplication::applicationDisplayName(), QString::fromStdString(text), buttons,
                    parentOfMessages(m_parts.window));
    box.setObjectName(u"messageBox"_s);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    // The wait cursor of the work that has something to say would tell the user not to answer.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = box.exec();
    QApplication::restoreOverrideCursor();
    return type != MessageBox_Question || answer == QMessageBox::Yes;
}

void WindowFrontEnd::showStatus(const std::string& text)
{
    m_parts.statusLine.setText(QString::fromStdString(text));
}

void WindowFrontEnd::setBusy(bool busy)
{
    if (busy) {
        ++m_busyCount;
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (m_busyCount > 0) {
        --m_busyCount;
        QApplication::restoreOverrideCursor();
    }
}

bool WindowFrontEnd::reportProgress(const std::string& task, double fraction)
{
    return m_parts.statusLine.progressBar().report(QString::fromStdString(task), fraction);
}

bool WindowFrontEnd::openHelp(const std::string& page)
{
    return m_parts.helpWindow.showPage(QString::fromStdString(page));
}

void WindowFrontEnd::fitPaperToWorkArea()
{
    m_parts.fitPaper();
}

double WindowFrontEnd::drawnTickSpacing(long frameId, char axis, int axisNumber) const
{
    return m_parts.tickSpacing(frameId, axis, axisNumber);
}

} // namespace vantrix::app
