#pragma once

#include <QProcess>
#include <QString>

namespace vantrix::app {

/*
 * A private X display without a screen (Xvfb), for rendering where there is no display. It lives as long as the object,
 * and DISPLAY points at it meanwhile.
 */
class VirtualDisplay
{
public:
    VirtualDisplay() = default;
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    /* Whether DISPLAY names an X display that takes connections. */
    static bool isDisplayThere();

    /* Starts the display and waits until it takes connections. False, with errorString(), when that fails. */
    bool start();

    const QString& errorString() const { return m_error; }

private:
    bool fail(const QString& reason);

    QProcess m_server;
    QString m_error;
};

} // namespace vantrix::app
