#include "app/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

const int mostEntries = 10;
const auto settingsGroup = "RecentFiles"_L1;
const auto settingsKey = "Files"_L1;

/* "&1 fin.vts", the folder behind it; a grid with its solution as "grid.xyz + flow.q". */
QString entryText(int number, const QStringList& files)
{
    QStringList names;
    for (const QString& file : files) {
        names << QFileInfo(file).fileName().replace(u'&', u"&&"_s);
    }
    const QString folder = QFileInfo(files.first()).path().replace(u'&', u"&&"_s);
    const QString key = number < 10 ? u"&%1 "_s.arg(number) : QString();
    return u"%1%2  (%3)"_s.arg(key, names.join(u" + "_s), folder);
}

} // namespace

RecentFiles::RecentFiles(QWidget* parent)
    : QMenu(tr("Open &Recent"), parent)
{
    setObjectName(u"recentFilesMenu"_s);
    load();
    fill();
}

void RecentFiles::add(const QStringList& files)
{
    if (files.isEmpty()) {
        return;
    }
    m_entries.removeAll(files);
    m_entries.prepend(files);
    while (m_entries.size() > mostEntries) {
        m_entries.removeLast();
    }
    store();
    fill();
}

void RecentFiles::remove(const QStringList& files)
{
    if (m_entries.removeAll(files) == 0) {
        return;
    }
    store();
    fill();
}

void RecentFiles::load()
{
    QSettings settings;
    const int count = settings.beginReadArray(settingsGroup);
    for (int index = 0; index < count; ++index) {
        settings.setArrayIndex(index);
        const QStringList files = settings.value(settingsKey).toStringList();
        if (!files.isEmpty()) {
            m_entries << files;
        }
    }
}

void RecentFiles::store() const
{
    QSettings settings;
    settings.remove(settingsGroup);
    settings.beginWriteArray(settingsGroup);
    for (int index = 0; index < m_entries.size(); ++index) {
        settings.setArrayIndex(index);
        settings.setValue(settingsKey, m_entries[index]);
    }
    settings.endArray();
}

void RecentFiles::fill()
{
    clear();
    menuAction()->setEnabled(!m_entries.isEmpty());
    int number = 0;
    for (const QStringList& files : std::as_const(m_entries)) {
        QAction* action = addAction(entryText(++number, files));
        connect(action, &QAction::triggered, this, [this, files] { Q_EMIT chosen(files); });
    }
    addSeparator();
    QAction* clearAction = addAction(tr("&Clear List"));
    connect(clearAction, &QAction::triggered, this, [this] {
        m_entries.clear();
        store();
        fill();
    });
}

} // namespace vantrix::app
