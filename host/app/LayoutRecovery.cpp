#include "app/LayoutRecovery.h"

#include "api/VtxUtilDialog.h"
#include "kernel/DataError.h"
#include "kernel/Layout.h"

#include <QLocale>
#include <QPushButton>

namespace vantrix::app {

void LayoutRecovery::offer()
{
    for (const AutoSave::Copy& copy : m_autoSave.leftBehind()) {
        const QMessageBox::ButtonRole answer = ask(copy);
        if (answer == QMessageBox::AcceptRole) {
            open(copy);
            return; // the others are offered again at the next start
        }
        if (answer == QMessageBox::DestructiveRole) {
            AutoSave::remove(copy);
        }
    }
}

QMessageBox::ButtonRole LayoutRecovery::ask(const AutoSave::Copy& copy)
{
    const QString name = copy.original.isEmpty() ? tr("a layout without a name") : copy.original;
    QMessageBox box(QMessageBox::Question, tr("Recover Layout"),
                    tr("vxplot ended unexpectedly while %1 had unsaved changes. Recover the copy of %2?")
                        .arg(name, QLocale().toString(copy.time, QLocale::ShortFormat)),
                    QMessageBox::NoButton, &m_window);
    box.setInformativeText(tr("Discard deletes the copy for good. Later keeps it and asks again at the next start."));
    QPushButton* recover = box.addButton(tr("&Recover"), QMessageBox::AcceptRole);
    box.addButton(tr("&Discard"), QMessageBox::DestructiveRole);
    QPushButton* later = box.addButton(tr("&Later"), QMessageBox::RejectRole);
    box.setDefaultButton(recover);
    box.setEscapeButton(later);
    box.exec();
    return box.buttonRole(box.clickedButton());
}

void LayoutRecovery::open(const AutoSave::Copy& copy)
{
    try {
        m_layout.recover(copy.file.toStdString(), copy.original.toStdString());
        if (m_autoSave.save()) {
            AutoSave::remove(copy);
        }
    } catch (const kernel::DataError& failure) {
        VtxUtilDialogErrMsg(failure.what());
    }
}

} // namespace vantrix::app
