#include "app/MainWindow.h"

#include "app/DataOpener.h"
#include "app/HelpWindow.h"
#include "app/HistoryActions.h"
#include "app/MainMenu.h"
#include "app/MouseModeBar.h"
#include "app/PictureExport.h"
#include "app/RecentFiles.h"
#include "app/SideBar.h"
#include "app/StatusLine.h"
#include "app/ToolTipFilter.h"
#include "app/WindowFrontEnd.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/VariableMemory.h"
#include "sdk/WaitState.h"
#include "view/WorkArea.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

const auto geometryKey = "Window/Geometry"_L1;
const auto stateKey = "Window/State"_L1;
const auto openFolderKey = "Folders/Open"_L1;
const auto exportFolderKey = "Folders/Export"_L1;

QStringList localFiles(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    return files;
}

bool mayConcernMemory(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() != StateChange_View && event.kind() != StateChange_DataAvailability;
}

bool mayConcernTitle(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() != StateChange_View && event.kind() != StateChange_Style;
}

} // namespace

MainWindow::MainWindow(kernel::Kernel& kernel)
    : m_kernel(kernel)
    , m_workArea(new view::WorkArea(kernel, this))
    , m_statusLine(new StatusLine(this))
    , m_helpWindow(new HelpWindow(this))
    , m_recentFiles(new RecentFiles(this))
    , m_frontEnd(std::make_unique<WindowFrontEnd>(
          WindowFrontEnd::Parts{*this, *m_statusLine, *m_helpWindow, [this] { m_workArea->fitPaper(); }}))
    , m_titleUpdater(mayConcernTitle, [this] { updateTitle(); })
    , m_memoryTidier(mayConcernMemory, [this] { m_kernel.variableMemory().tidy(); })
{
    setObjectName(u"mainWindow"_s);
    setWindowIcon(QIcon(u":/vxplot/vxplot.svg"_s));
    setAcceptDrops(true);
    setCentralWidget(m_workArea);
    setStatusBar(m_statusLine);
    addDockWidget(Qt::LeftDockWidgetArea, new SideBar(this));
    auto* history = new HistoryActions(this);
    auto* mouseModes = new MouseModeBar(this);
    auto* menu = new MainMenu(*this, {*history, *mouseModes, *m_recentFiles});
    QToolBar* standardBar = addToolBar(tr("Standard"));
    standardBar->setObjectName(u"standardBar"_s);
    standardBar->addActions(menu->standardActions());
    addToolBar(mouseModes);

    connect(m_workArea, &view::WorkArea::coordinatesChanged, m_statusLine, &StatusLine::setCoordinates);
    connect(m_workArea, &view::WorkArea::statusMessage, m_statusLine, &StatusLine::setText);
    connect(m_recentFiles, &RecentFiles::chosen, this, &MainWindow::openFiles);
    qApp->installEventFilter(new ToolTipFilter(this));
    m_kernel.setFrontEnd(m_frontEnd.get());
    restoreLayout();
}

MainWindow::~MainWindow()
{
    m_kernel.setFrontEnd(nullptr);
}

bool MainWindow::openFiles(const QStringList& files)
{
    if (!DataOpener(m_kernel).openFiles(files)) {
        // An entry whose file is gone is of no more use.
        for (const QString& file : files) {
            if (!QFileInfo::exists(file))
                m_recentFiles->remove(files);
        }
        return false;
    }
    QSettings().setValue(openFolderKey, QFileInfo(files.first()).absolutePath());
    m_recentFiles->add(files);
    return true;
}

bool MainWindow::openSample(const QString& name)
{
    return DataOpener(m_kernel).openSample(name);
}

void MainWindow::chooseFiles()
{
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open Data"), QSettings().value(openFolderKey).toString(), DataOpener::fileDialogFilter());
    if (!files.isEmpty())
        openFiles(files);
}

void MainWindow::exportImage()
{
    exportTo(tr("Export Image"), tr("PNG image (*.png);;JPEG image (*.jpg *.jpeg);;All files (*)"), u"png"_s);
}

void MainWindow::exportPdf()
{
    exportTo(tr("Export PDF"), tr("PDF document (*.pdf);;All files (*)"), u"pdf"_s);
}

void MainWindow::exportTo(const QString& title, const QString& filter, const QString& suffix)
{
    QFileDialog dialog(this, title, QSettings().value(exportFolderKey).toString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().first();
    QString problem;
    {
        const sdk::WaitState wait;
        problem = PictureExport(m_workArea->renderer(), *m_kernel.document().activePage()).write(path);
    }
    if (!problem.isEmpty()) {
        m_frontEnd->showMessage(problem.toStdString(), MessageBox_Error);
        return;
    }
    QSettings().setValue(exportFolderKey, QFileInfo(path).absolutePath());
    m_statusLine->setText(tr("Wrote \"%1\".").arg(path));
}

void MainWindow::showHelp(const QString& page)
{
    if (!m_helpWindow->showPage(page))
        m_frontEnd->showMessage(
            tr("The help page \"%1\" is not there. Install the folder help/ with the program.").arg(page).toStdString(),
            MessageBox_Error);
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About vxplot"),
                       tr("<h3>vxplot %1</h3><p>Plots of scientific data, with dialogs that edit data and style.</p>"
                          "<p>Built with Qt %2 and VTK.</p>")
                           .arg(QApplication::applicationVersion(), QString::fromLatin1(qVersion())));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    saveLayout();
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QStringList files = localFiles(*event->mimeData());
    if (files.isEmpty())
        return;
    event->acceptProposedAction();
    // The program that the files come from waits until this event is handled, and a message box would keep it waiting.
    QMetaObject::invokeMethod(
        this, [this, files] { openFiles(files); }, Qt::QueuedConnection);
}

void MainWindow::updateTitle()
{
    const std::shared_ptr<const kernel::DataSet> dataSet = m_kernel.document().activeDataSet();
    setWindowTitle(dataSet != nullptr ? QString::fromStdString(dataSet->title) : QString());
}

void MainWindow::restoreLayout()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(geometryKey).toByteArray()))
        resize(1200, 820);
    restoreState(settings.value(stateKey).toByteArray());
}

void MainWindow::saveLayout() const
{
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(stateKey, saveState());
}

} // namespace vantrix::app
