#pragma once

#include <QMenu>
#include <QStringList>

namespace vantrix::app {

/*
 * The files opened last, newest first, kept between runs, as a menu. Files that were opened together (a grid and its
 * solution) are one entry.
 */
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    explicit RecentFiles(QWidget* parent);

    /* Puts files that were opened, given by absolute paths, at the top. */
    void add(const QStringList& files);

    /* Forgets an entry, for instance because its files are gone. */
    void remove(const QStringList& files);

Q_SIGNALS:
    void chosen(const QStringList& files);

private:
    void load();
    void store() const;
    void fill();

    QList<QStringList> m_entries;
};

} // namespace vantrix::app
