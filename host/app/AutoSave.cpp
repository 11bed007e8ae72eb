#include "app/AutoSave.h"

#include "kernel/AtomicFile.h"
#include "kernel/DataError.h"
#include "kernel/Layout.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QStandardPaths>
#include <QUuid>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

constexpr int interval = 60 * 1000; /* milliseconds */

/* A copy of session S is S.vxlay; S.lock tells that the session runs, S.name holds the name of the layout. */
const QString copyEnding = u".vxlay"_s;
const QString lockEnding = u".lock"_s;
const QString nameEnding = u".name"_s;

QString sibling(const QString& copy, const QString& ending)
{
    return copy.chopped(copyEnding.size()) + ending;
}

/* Whether the session that made a copy has ended; its lock is then free. */
bool isLeftBehind(const QString& copy)
{
    QLockFile lock(sibling(copy, lockEnding));
    lock.setStaleLockTime(0); // a session may last for days
    return lock.tryLock(0);
}

} // namespace

QString AutoSave::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/autosave"_s;
}

AutoSave::AutoSave(kernel::Layout& layout, const QString& folder, QObject* parent)
    : QObject(parent)
    , m_layout(layout)
    , m_folder(folder)
    , m_session(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    QDir().mkpath(m_folder);
    m_lock = std::make_unique<QLockFile>(file(lockEnding));
    m_lock->setStaleLockTime(0);
    m_lock->tryLock(0);
    connect(&m_timer, &QTimer::timeout, this, &AutoSave::save);
    m_timer.start(interval);
}

AutoSave::~AutoSave()
{
    QFile::remove(file(copyEnding));
    QFile::remove(file(nameEnding));
}

QString AutoSave::file(const QString& ending) const
{
    return m_folder + u'/' + m_session + ending;
}

bool AutoSave::save()
{
    if (!m_layout.isModified()) {
        QFile::remove(file(copyEnding));
        m_savedText.clear();
        return true;
    }
    std::string text = m_layout.text();
    if (text == m_savedText) {
        return true;
    }
    try {
        kernel::replaceFile(file(nameEnding).toStdString(), m_layout.fileName());
        kernel::replaceFile(file(copyEnding).toStdString(), text);
        m_savedText = std::move(text);
    } catch (const kernel::DataError&) {
        // A copy that cannot be written must not disturb the work; the next one is tried again.
        return false;
    }
    return true;
}

QList<AutoSave::Copy> AutoSave::leftBehind() const
{
    QList<Copy> copies;
    for (const QFileInfo& info : QDir(m_folder).entryInfoList({u'*' + copyEnding}, QDir::Files, QDir::Time)) {
        const QString path = info.absoluteFilePath();
        if (info.completeBaseName() == m_session || !isLeftBehind(path)) {
            continue;
        }
        QFile name(sibling(path, nameEnding));
        const QString original = name.open(QIODevice::ReadOnly) ? QString::fromUtf8(name.readAll()) : QString();
        copies << Copy{path, original, info.lastModified()};
    }
    return copies;
}

void AutoSave::remove(const Copy& copy)
{
    QFile::remove(copy.file);
    QFile::remove(sibling(copy.file, nameEnding));
}

} // namespace vantrix::app
