#include "app/MainMenu.h"

#include "app/FrameMenu.h"
#include "app/HelpWindow.h"
#include "app/HistoryActions.h"
#include "app/InsertMenu.h"
#include "app/LayoutFiles.h"
#include "app/MacroMenu.h"
#include "app/MainWindow.h"
#include "app/MouseModeBar.h"
#include "app/PageMenu.h"
#include "app/RecentFiles.h"
#include "dialogs/DialogRegistry.h"
#include "kernel/SampleData.h"
#include "view/WorkArea.h"

#include <QIcon>
#include <QMenuBar>
#include <QStyle>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

QString withoutAccessKey(QString text)
{
    return text.remove(u'&').remove(u"..."_s);
}

QIcon icon(const char* name)
{
    return QIcon(u":/vxplot/icons/%1.svg"_s.arg(QLatin1StringView(name)));
}

} // namespace

MainMenu::MainMenu(MainWindow& window, const Parts& parts)
    : QObject(&window)
    , m_window(window)
{
    addFileMenu(parts.recentFiles);
    addEditMenu(parts.history);
    addViewMenu(parts.mouseModes);
    addPlotMenus();
    addDialogs();
    addExit();
    new MacroMenu(menu(tr("&Macro")), m_window);
    addHelpMenu();
}

QMenu* MainMenu::menu(const QString& path)
{
    QMenu* menu = nullptr;
    for (const QString& title : path.split(u'/', Qt::SkipEmptyParts)) {
        const QList<QAction*> actions = menu != nullptr ? menu->actions() : m_window.menuBar()->actions();
        QMenu* found = nullptr;
        for (const QAction* action : actions) {
            if (action->menu() != nullptr && withoutAccessKey(action->text()) == withoutAccessKey(title)) {
                found = action->menu();
            }
        }
        if (found == nullptr) {
            found = menu != nullptr ? menu->addMenu(title) : m_window.menuBar()->addMenu(title);
        }
        menu = found;
    }
    return menu;
}

void MainMenu::addFileMenu(RecentFiles& recentFiles)
{
    QMenu* file = menu(tr("&File"));
    QAction* clear = file->addAction(tr("&New Layout"), &m_window.layoutFiles(), &LayoutFiles::clear);
    clear->setObjectName(u"newLayoutAction"_s);
    clear->setShortcuts(QKeySequence::New);
    QAction* open = file->addAction(icon("open"), tr("&Open..."), &m_window, &MainWindow::chooseFiles);
    open->setObjectName(u"openAction"_s);
    open->setShortcuts(QKeySequence::Open);
    m_standardActions << open;
    QAction* openLayout = file->addAction(tr("Open &Layout..."), &m_window.layoutFiles(), &LayoutFiles::choose);
    openLayout->setObjectName(u"openLayoutAction"_s);
    openLayout->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_O);
    file->addMenu(&recentFiles);
    QMenu* samples = file->addMenu(tr("Open &Sample"));
    for (const std::string& sample : kernel::SampleData::names()) {
        const QString name = QString::fromStdString(sample);
        QAction* action = samples->addAction(name);
        action->setObjectName(u"sample_"_s + name);
        connect(action, &QAction::triggered, &m_window, [this, name] { m_window.openSample(name); });
    }
    file->addSeparator();
    QAction* save = file->addAction(m_window.style()->standardIcon(QStyle::SP_DialogSaveButton), tr("Sa&ve Layout"),
                                    &m_window.layoutFiles(), &LayoutFiles::save);
    save->setObjectName(u"saveLayoutAction"_s);
    save->setShortcuts(QKeySequence::Save);
    QAction* saveAs = file->addAction(tr("Save Layout &As..."), &m_window.layoutFiles(), &LayoutFiles::saveAs);
    saveAs->setObjectName(u"saveLayoutAsAction"_s);
    saveAs->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    file->addSeparator();
    QAction* image = file->addAction(icon("export"), tr("Export &Image..."), &m_window, &MainWindow::exportImage);
    image->setObjectName(u"exportImageAction"_s);
    image->setShortcut(Qt::CTRL | Qt::Key_E);
    m_standardActions << image;
    file->addAction(tr("Export &PDF..."), &m_window, &MainWindow::exportPdf);
    file->addSeparator(); // the dialogs of this menu follow
}

void MainMenu::addExit()
{
    QMenu* file = menu(tr("&File"));
    file->addSeparator();
    QAction* quit = file->addAction(m_window.style()->standardIcon(QStyle::SP_DialogCloseButton), tr("E&xit"),
                                    &m_window, &QWidget::close);
    quit->setShortcuts(QKeySequence::Quit);
}

void MainMenu::addEditMenu(const HistoryActions& history)
{
    QMenu* edit = menu(tr("&Edit"));
    edit->addAction(history.undo());
    edit->addAction(history.redo());
    m_standardActions << history.undo() << history.redo();
}

void MainMenu::addViewMenu(const MouseModeBar& mouseModes)
{
    QMenu* view = menu(tr("&View"));
    view->addActions(mouseModes.modeActions());
    view->addSeparator();
    QAction* fitPlot = view->addAction(tr("&Fit Plot"), &m_window.workArea(), &view::WorkArea::fitPlot);
    fitPlot->setIcon(icon("fit"));
    fitPlot->setShortcut(Qt::CTRL | Qt::Key_F);
    m_standardActions << fitPlot;
    QAction* fitPaper = view->addAction(tr("Fit P&aper"), &m_window.workArea(), &view::WorkArea::fitPaper);
    fitPaper->setShortcut(Qt::CTRL | Qt::Key_0);
    QAction* redraw = view->addAction(tr("Redra&w"), &m_window.workArea(), &view::WorkArea::redraw);
    redraw->setObjectName(u"redrawAction"_s);
    redraw->setShortcuts(QKeySequence::Refresh);
    view->addSeparator();
    QMenu* windows = m_window.createPopupMenu();
    windows->setTitle(tr("&Bars"));
    view->addMenu(windows);
}

void MainMenu::addPlotMenus()
{
    new InsertMenu(menu(tr("&Insert")), m_window.workArea());
    new FrameMenu(menu(tr("F&rame")));
    new PageMenu(menu(tr("&Page")));
}

void MainMenu::addDialogs()
{
    for (const sdk::ui::dialogs::DialogEntry& dialog : sdk::ui::dialogs::dialogRegistry()) {
        const QString path = dialog.menuPath();
        QAction* action = menu(path.section(u'/', 0, -2))->addAction(path.section(u'/', -1));
        action->setObjectName(dialog.name());
        connect(action, &QAction::triggered, &m_window, [this, &dialog] { dialog.launch(m_window); });
    }
}

void MainMenu::addHelpMenu()
{
    QMenu* help = menu(tr("&Help"));
    QAction* contents = help->addAction(m_window.style()->standardIcon(QStyle::SP_DialogHelpButton), tr("&Contents"),
                                        &m_window, [this] { m_window.showHelp(HelpWindow::contentsPage()); });
    contents->setObjectName(u"helpContentsAction"_s);
    contents->setShortcuts(QKeySequence::HelpContents);
    help->addSeparator();
    help->addAction(QIcon(u":/vxplot/vxplot.svg"_s), tr("&About vxplot"), &m_window, &MainWindow::showAbout);
}

} // namespace vantrix::app
