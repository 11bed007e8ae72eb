#include "app/DialogPictures.h"

#include "dialogs/DialogRegistry.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"

#include <QApplication>
#include <QDir>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

/* Lets a dialog that was just shown lay itself out and fill its fields. */
void settle()
{
    for (int turn = 0; turn < 3; ++turn) {
        QApplication::processEvents();
        sdk::OnIdleActionPerformerSingleShot::performPending();
    }
}

} // namespace

DialogPictures::DialogPictures(QString directory)
    : m_directory(std::move(directory))
{}

QString DialogPictures::save() const
{
    if (!QDir().mkpath(m_directory)) {
        return u"Cannot make the folder \"%1\"."_s.arg(m_directory);
    }
    QWidget parent;
    for (const sdk::ui::dialogs::DialogEntry& entry : sdk::ui::dialogs::dialogRegistry()) {
        QWidget* dialog = entry.launch(parent);
        if (dialog == nullptr) {
            return u"The dialog \"%1\" did not open."_s.arg(entry.name());
        }
        settle();
        const QString path = QDir(m_directory).filePath(entry.name() + u".png"_s);
        if (!dialog->grab().save(path)) {
            return u"Cannot write \"%1\"."_s.arg(path);
        }
        entry.drop();
    }
    return {};
}

} // namespace vantrix::app
