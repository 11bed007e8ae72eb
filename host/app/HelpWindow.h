#pragma once

#include <QMainWindow>
#include <QString>

class QTextBrowser;

namespace vantrix::app {

/* Shows the pages of the help, with the way back and forward and to the contents. */
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /* The page that lists all others. */
    static QString contentsPage();

    /* Shows a page ("create_zone_circular.html"). False, and no window, when there is no such page. */
    bool showPage(const QString& page);

private:
    QTextBrowser* m_browser;
};

} // namespace vantrix::app
