#include "app/MainWindow.h"

#include "api/VtxUtilDocument.h"
#include "api/VtxUtilPick.h"
#include "app/AutoSave.h"
#include "app/DataOpener.h"
#include "app/HelpWindow.h"
#include "app/HistoryActions.h"
#include "app/ImageSizeDialog.h"
#include "app/LayoutFiles.h"
#include "app/LayoutRecovery.h"
#include "app/MainMenu.h"
#include "app/MouseModeBar.h"
#include "app/PictureExport.h"
#include "app/RecentFiles.h"
#include "app/SideBar.h"
#include "app/StatusLine.h"
#include "app/TextPlacement.h"
#include "app/ToolTipFilter.h"
#include "app/WindowFrontEnd.h"
#include "dialogs/DialogRegistry.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/Layout.h"
#include "kernel/VariableMemory.h"
#include "sdk/WaitState.h"
#include "view/FramePlot.h"
#include "view/PageRenderer.h"
#include "view/WorkArea.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
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
        if (url.isLocalFile()) {
            files << url.toLocalFile();
        }
    }
    return files;
}

bool mayConcernMemory(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() != StateChange_View && event.kind() != StateChange_DataAvailability;
}

bool mayConcernTitle(const toolbox::StateChangeEventInterface& /*event*/)
{
    return true; // every change may make the layout differ from its file
}

} // namespace

MainWindow::MainWindow(kernel::Kernel& kernel)
    : m_kernel(kernel)
    , m_workArea(new view::WorkArea(kernel, this))
    , m_statusLine(new StatusLine(this))
    , m_helpWindow(new HelpWindow(this))
    , m_recentFiles(new RecentFiles(this))
    , m_layoutFiles(new LayoutFiles(kernel, *this))
    , m_autoSave(new AutoSave(kernel.layout(), AutoSave::defaultFolder(), this))
    , m_textPlacement(new TextPlacement(this))
    , m_frontEnd(std::make_unique<WindowFrontEnd>(
          WindowFrontEnd::Parts{*this, *m_statusLine, *m_helpWindow, [this] { m_workArea->fitPaper(); },
                                [this](long frameId, char axis, int axisNumber) {
                                    const view::FramePlot* plot = m_workArea->renderer().plot(frameId);
                                    return plot ? plot->hits.tickSpacing(axis, axisNumber) : 0.0;
                                }}))
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
    connect(m_workArea, &view::WorkArea::objectActivated, this, &MainWindow::activateObject);
    connect(m_workArea, &view::WorkArea::textPlaceClicked, m_textPlacement, &TextPlacement::place);
    connect(m_recentFiles, &RecentFiles::chosen, this, &MainWindow::openFiles);
    qApp->installEventFilter(new ToolTipFilter(this));
    m_kernel.setFrontEnd(m_frontEnd.get());
    m_kernel.layout().setMarkListener([this] { updateTitle(); });
    restoreWindow();
}

MainWindow::~MainWindow()
{
    m_kernel.layout().setMarkListener({});
    m_kernel.setFrontEnd(nullptr);
}

bool MainWindow::openFiles(const QStringList& files)
{
    const bool isWithoutWork = holdsNoWork();
    const bool isLayout = files.size() == 1 && LayoutFiles::isLayout(files.first());
    if (isLayout ? !m_layoutFiles->open(files.first()) : !DataOpener(m_kernel).openFiles(files)) {
        // An entry whose file is gone is of no more use.
        for (const QString& file : files) {
            if (!QFileInfo::exists(file)) {
                m_recentFiles->remove(files);
            }
        }
        return false;
    }
    if (isWithoutWork && !isLayout) {
        m_kernel.layout().setUnmodified();
    }
    QSettings().setValue(openFolderKey, QFileInfo(files.first()).absolutePath());
    m_recentFiles->add(files);
    return true;
}

bool MainWindow::openSample(const QString& name)
{
    const bool isWithoutWork = holdsNoWork();
    const bool isOpen = DataOpener(m_kernel).openSample(name);
    if (isOpen && isWithoutWork) {
        m_kernel.layout().setUnmodified();
    }
    return isOpen;
}

bool MainWindow::holdsNoWork() const
{
    const kernel::Layout& layout = m_kernel.layout();
    return layout.fileName().empty() && !layout.isModified();
}

bool MainWindow::playMacro(const QString& file)
{
    const sdk::WaitState wait;
    if (VtxUtilMacroRun(file.toUtf8().constData())) {
        return true;
    }
    m_frontEnd->showMessage(m_kernel.lastError(), MessageBox_Error);
    return false;
}

void MainWindow::offerRecovery()
{
    LayoutRecovery(m_kernel.layout(), *m_autoSave, *this).offer();
}

void MainWindow::activateObject(PickObject_e type)
{
    m_statusLine->setText({}); // what was told of an earlier click
    if (type == PickObject_Text) {
        m_textPlacement->edit(VtxUtilPickListGetText(1));
    } else if (!sdk::ui::dialogs::launchDialogForPicked(type, *this)) {
        m_statusLine->setText(tr("There is no dialog for what was clicked."));
    }
}

void MainWindow::chooseFiles()
{
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open Data"), QSettings().value(openFolderKey).toString(), DataOpener::fileDialogFilter());
    if (!files.isEmpty()) {
        openFiles(files);
    }
}

void MainWindow::exportImage()
{
    ImageSizeDialog dialog(m_workArea->renderer().paperSize(*m_kernel.document().activePage()), this);
    if (dialog.exec() == QDialog::Accepted) {
        exportTo(tr("Export Image"), tr("PNG image (*.png);;JPEG image (*.jpg *.jpeg);;All files (*)"), u"png"_s,
                 dialog.imageSize());
    }
}

void MainWindow::exportPdf()
{
    exportTo(tr("Export PDF"), tr("PDF document (*.pdf);;All files (*)"), u"pdf"_s);
}

void MainWindow::exportTo(const QString& title, const QString& filter, const QString& suffix, QSize size)
{
    QFileDialog dialog(this, title, QSettings().value(exportFolderKey).toString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString path = dialog.selectedFiles().first();
    QString problem;
    {
        const sdk::WaitState wait;
        problem = PictureExport(m_workArea->renderer(), *m_kernel.document().activePage()).write(path, size);
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
    if (!m_helpWindow->showPage(page)) {
        m_frontEnd->showMessage(
            tr("The help page \"%1\" is not there. Install the folder help/ with the program.").arg(page).toStdString(),
            MessageBox_Error);
    }
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
    if (!m_layoutFiles->mayDrop()) {
        event->ignore();
        return;
    }
    saveWindow();
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QStringList files = localFiles(*event->mimeData());
    if (files.isEmpty()) {
        return;
    }
    event->acceptProposedAction();
    // The program that the files come from waits until this event is handled, and a message box would keep it waiting.
    QMetaObject::invokeMethod(
        this, [this, files] { openFiles(files); }, Qt::QueuedConnection);
}

void MainWindow::updateTitle()
{
    const std::shared_ptr<const kernel::DataSet> dataSet = m_kernel.document().activeDataSet();
    const QString dataTitle = dataSet ? QString::fromStdString(dataSet->title) : QString();
    setWindowTitle(m_layoutFiles->title(dataTitle.isEmpty() ? tr("Untitled") : dataTitle));
    setWindowModified(m_kernel.layout().isModified());
}

void MainWindow::restoreWindow()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(geometryKey).toByteArray())) {
        resize(QSize(1200, 820).boundedTo(screen()->availableSize()));
    }
    restoreState(settings.value(stateKey).toByteArray());
}

void MainWindow::saveWindow() const
{
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(stateKey, saveState());
}

} // namespace vantrix::app
