#include "app/LayoutFiles.h"

#include "api/VtxUtil.h"
#include "kernel/Kernel.h"
#include "kernel/Layout.h"
#include "sdk/VtxUtilActionReporter.h"
#include "sdk/WaitState.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

const auto layoutFolderKey = "Folders/Layout"_L1;

} // namespace

LayoutFiles::LayoutFiles(kernel::Kernel& kernel, QWidget& window)
    : QObject(&window)
    , m_layout(kernel.layout())
    , m_window(window)
{}

QString LayoutFiles::suffix()
{
    return u".vxlay"_s;
}

QString LayoutFiles::filter()
{
    return tr("Layouts (*%1);;All files (*)").arg(suffix());
}

QString LayoutFiles::title(const QString& untitled) const
{
    const QString name = QFileInfo(QString::fromStdString(m_layout.fileName())).fileName();
    return (name.isEmpty() ? untitled : name) + u"[*]"_s;
}

bool LayoutFiles::attempt(bool isDone)
{
    if (!isDone) {
        sdk::VtxUtilActionReporter().reportLastFailure();
    }
    return isDone;
}

QString LayoutFiles::ask(const QString& title, bool isSaving) const
{
    const QString present = QString::fromStdString(m_layout.fileName());
    QFileDialog dialog(&m_window, title, present.isEmpty() ? QSettings().value(layoutFolderKey).toString() : present,
                       filter());
    dialog.setAcceptMode(isSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(isSaving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(suffix().mid(1));
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    QSettings().setValue(layoutFolderKey, dialog.directory().absolutePath());
    return dialog.selectedFiles().first();
}

bool LayoutFiles::clear()
{
    return mayDrop() && attempt(VtxUtilLayoutNew());
}

bool LayoutFiles::choose()
{
    if (!mayDrop()) {
        return false;
    }
    const QString file = ask(tr("Open Layout"), false);
    if (file.isEmpty()) {
        return false;
    }
    const sdk::WaitState wait;
    return attempt(VtxUtilLayoutOpen(file.toUtf8().constData()));
}

bool LayoutFiles::open(const QString& file)
{
    return mayDrop() && attempt(VtxUtilLayoutOpen(file.toUtf8().constData()));
}

bool LayoutFiles::save()
{
    return m_layout.fileName().empty() ? saveAs() : saveTo(QString::fromStdString(m_layout.fileName()));
}

bool LayoutFiles::saveAs()
{
    const QString file = ask(tr("Save Layout"), true);
    return !file.isEmpty() && saveTo(file);
}

bool LayoutFiles::saveTo(const QString& file)
{
    if (!attempt(VtxUtilLayoutSave(file.toUtf8().constData()))) {
        return false;
    }
    VtxUtilStatusMessage(tr("Saved \"%1\".").arg(file).toUtf8().constData());
    return true;
}

bool LayoutFiles::mayDrop()
{
    if (!m_layout.isModified()) {
        return true;
    }
    const auto answer = QMessageBox::warning(
        &m_window, tr("Unsaved Changes"), tr("The layout has changes that are not saved. Save them?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

} // namespace vantrix::app
