#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QAction;
class QMenu;

namespace vantrix::app {

class HistoryActions;
class MainWindow;
class MouseModeBar;
class RecentFiles;

/* The menus of the window. The dialogs' places in them come from the dialog registry. */
class MainMenu : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        HistoryActions& history;
        MouseModeBar& mouseModes;
        RecentFiles& recentFiles;
    };

    MainMenu(MainWindow& window, const Parts& parts);

    /* A menu by its place ("Data/Create Zone"); made where it is missing. Access keys do not count. */
    QMenu* menu(const QString& path);

    /* What a tool bar offers besides. */
    const QList<QAction*>& standardActions() const { return m_standardActions; }

private:
    void addFileMenu(RecentFiles& recentFiles);
    void addEditMenu(const HistoryActions& history);
    void addViewMenu(const MouseModeBar& mouseModes);
    void addPlotMenus();
    void addDialogs();
    void addExit();
    void addHelpMenu();

    MainWindow& m_window;
    QList<QAction*> m_standardActions;
};

} // namespace vantrix::app
