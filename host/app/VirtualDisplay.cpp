#include "app/VirtualDisplay.h"

#include <QStandardPaths>

#include <X11/Xlib.h>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

const int waitMilliseconds = 20000;

} // namespace

VirtualDisplay::~VirtualDisplay()
{
    if (m_server.state() == QProcess::NotRunning) {
        return;
    }
    qunsetenv("DISPLAY");
    m_server.terminate();
    if (!m_server.waitForFinished(waitMilliseconds)) {
        m_server.kill();
    }
}

bool VirtualDisplay::isDisplayThere()
{
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        return false;
    }
    XCloseDisplay(display);
    return true;
}

bool VirtualDisplay::start()
{
    const QString program = QStandardPaths::findExecutable(u"Xvfb"_s);
    if (program.isEmpty()) {
        return fail(u"the program Xvfb is not installed (Debian package \"xvfb\")"_s);
    }
    // The server writes the number that it took to the descriptor, here its standard output.
    m_server.setProcessChannelMode(QProcess::SeparateChannels);
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(program,
                   {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1600x1200x24"_s, u"-nolisten"_s, u"tcp"_s});
    if (!m_server.waitForStarted(waitMilliseconds)) {
        return fail(u"%1 did not start: %2"_s.arg(program, m_server.errorString()));
    }
    QByteArray number;
    while (!number.endsWith('\n')) {
        if (!m_server.waitForReadyRead(waitMilliseconds)) {
            m_server.kill();
            m_server.waitForFinished(waitMilliseconds);
            return fail(u"%1 ended, or did not answer, without opening a display"_s.arg(program));
        }
        number += m_server.readAllStandardOutput();
    }
    qputenv("DISPLAY", ':' + number.trimmed());
    return true;
}

bool VirtualDisplay::fail(const QString& reason)
{
    m_error = u"There is no X display, and a virtual one could not be started: %1."_s.arg(reason);
    return false;
}

} // namespace vantrix::app
