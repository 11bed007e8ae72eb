#include "app/MacroMenu.h"

#include "api/VtxUtil.h"
#include "sdk/VtxUtilActionReporter.h"
#include "sdk/WaitState.h"

#include <QFileDialog>
#include <QMenu>
#include <QSettings>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

const auto macroFolderKey = "Folders/Macro"_L1;

bool isMacroChange(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() == StateChange_MacroRecording;
}

/* Asks for a macro file; empty when the user changed their mind. */
QString askForFile(QWidget& window, const QString& title, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(&window, title, QSettings().value(macroFolderKey).toString(),
                       MacroMenu::tr("Macros (*%1);;All files (*)").arg(MacroMenu::suffix()));
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setDefaultSuffix(MacroMenu::suffix().mid(1));
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    QSettings().setValue(macroFolderKey, dialog.directory().absolutePath());
    return dialog.selectedFiles().first();
}

void report(bool isDone)
{
    if (!isDone) {
        sdk::VtxUtilActionReporter().reportLastFailure();
    }
}

} // namespace

MacroMenu::MacroMenu(QMenu* menu, QWidget& window)
    : QObject(menu)
    , m_window(window)
    , m_record(menu->addAction(tr("&Record..."), this, &MacroMenu::record))
    , m_stop(menu->addAction(tr("&Stop Recording"), this, &MacroMenu::stop))
    , m_play(menu->addAction(tr("&Play..."), this, &MacroMenu::play))
    , m_updater(isMacroChange, [this] { update(); })
{
    m_record->setObjectName(u"recordMacroAction"_s);
    m_record->setStatusTip(tr("Write what is done from now on to a macro file"));
    m_stop->setObjectName(u"stopMacroAction"_s);
    m_play->setObjectName(u"playMacroAction"_s);
    m_play->setStatusTip(tr("Do what a macro file says"));
    update();
}

QString MacroMenu::suffix()
{
    return u".vxmac"_s;
}

void MacroMenu::record()
{
    const QString file = askForFile(m_window, tr("Record Macro"), QFileDialog::AcceptSave);
    if (file.isEmpty()) {
        return;
    }
    const bool isRecording = VtxUtilMacroRecordStart(file.toUtf8().constData());
    report(isRecording);
    if (isRecording) {
        VtxUtilStatusMessage(tr("Recording \"%1\".").arg(file).toUtf8().constData());
    }
}

void MacroMenu::stop()
{
    const bool isWhole = VtxUtilMacroRecordStop();
    report(isWhole);
    if (isWhole) {
        VtxUtilStatusMessage(tr("The macro is recorded.").toUtf8().constData());
    }
}

void MacroMenu::play()
{
    const QString file = askForFile(m_window, tr("Play Macro"), QFileDialog::AcceptOpen);
    if (file.isEmpty()) {
        return;
    }
    bool isDone = false;
    {
        const sdk::WaitState wait;
        isDone = VtxUtilMacroRun(file.toUtf8().constData());
    }
    report(isDone);
}

void MacroMenu::update()
{
    const bool isRecording = VtxUtilMacroIsRecordingActive();
    m_record->setEnabled(!isRecording);
    m_stop->setEnabled(isRecording);
}

} // namespace vantrix::app
