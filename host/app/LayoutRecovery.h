#pragma once

#include "app/AutoSave.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace vantrix::app {

/* Asks about the copies that sessions left behind which ended without being asked to, and does what is answered. */
class LayoutRecovery
{
    Q_DECLARE_TR_FUNCTIONS(vantrix::app::LayoutRecovery)

public:
    LayoutRecovery(kernel::Layout& layout, AutoSave& autoSave, QWidget& window)
        : m_layout(layout)
        , m_autoSave(autoSave)
        , m_window(window)
    {}

    /* One question for each copy, until one is opened. A copy is deleted only when the user discards it, or when this
     * session has written a copy of its own of what was opened. */
    void offer();

private:
    QMessageBox::ButtonRole ask(const AutoSave::Copy& copy);
    void open(const AutoSave::Copy& copy);

    kernel::Layout& m_layout;
    AutoSave& m_autoSave;
    QWidget& m_window;
};

} // namespace vantrix::app
