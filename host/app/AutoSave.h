#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <string>

namespace vantrix::kernel {
class Layout;
}

namespace vantrix::app {

/*
 * Keeps a copy of a layout that was changed, for the case that the program ends without being asked to. Each session
 * has a copy of its own in the folder, and a lock by which others see that it still runs; both go with this object.
 */
class AutoSave : public QObject
{
    Q_OBJECT

public:
    /* Where copies are kept for the user. */
    static QString defaultFolder();

    AutoSave(kernel::Layout& layout, const QString& folder, QObject* parent);
    ~AutoSave() override;

    /* Writes the copy now, when the layout was changed since the last one. False when it could not be written. */
    bool save();

    /* What a session that has ended left behind. */
    struct Copy
    {
        QString file;
        QString original; /* the layout's file; empty when it had none */
        QDateTime time;
    };
    QList<Copy> leftBehind() const;

    /* Forgets a copy of leftBehind(). */
    static void remove(const Copy& copy);

private:
    QString file(const QString& ending) const;

    kernel::Layout& m_layout;
    QString m_folder;
    QString m_session;
    std::unique_ptr<QLockFile> m_lock;
    QTimer m_timer;
    std::string m_savedText;
};

} // namespace vantrix::app
