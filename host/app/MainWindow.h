#pragma once

#include "api/VtxEnumerations.h"
#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QMainWindow>

#include <memory>

namespace vantrix::kernel {
class Kernel;
}
namespace vantrix::view {
class WorkArea;
}

namespace vantrix::app {

class AutoSave;
class HelpWindow;
class LayoutFiles;
class RecentFiles;
class StatusLine;
class TextPlacement;
class WindowFrontEnd;

/*
 * The window of vxplot: the work area, and around it menus, tool bars, the side bar and the status line. While it lives
 * it is the kernel's front end.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(kernel::Kernel& kernel);
    ~MainWindow() override;

    view::WorkArea& workArea() const { return *m_workArea; }
    LayoutFiles& layoutFiles() const { return *m_layoutFiles; }

    /* Opens a layout file, or files as one data set. What is wrong with one is shown; what was open then stays. */
    bool openFiles(const QStringList& files);
    bool openSample(const QString& name);

    /* The same after asking for the files. */
    void chooseFiles();

    /* Asks for a file, and of an image for its size, and writes the page to it as an image, or as PDF. */
    void exportImage();
    void exportPdf();

    /* Does what a macro file says; what goes wrong is shown. */
    bool playMacro(const QString& file);

    /* Offers to open what a session left behind that ended without being asked to. */
    void offerRecovery();

    void showHelp(const QString& page);
    void showAbout();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void exportTo(const QString& title, const QString& filter, const QString& suffix, QSize size = {});
    void activateObject(PickObject_e type);

    /* Whether nothing would be lost if the layout went: it has no file, and at most data were opened. */
    bool holdsNoWork() const;
    void restoreWindow();
    void saveWindow() const;
    void updateTitle();

    kernel::Kernel& m_kernel;
    view::WorkArea* m_workArea;
    StatusLine* m_statusLine;
    HelpWindow* m_helpWindow;
    RecentFiles* m_recentFiles;
    LayoutFiles* m_layoutFiles;
    AutoSave* m_autoSave;
    TextPlacement* m_textPlacement;
    std::unique_ptr<WindowFrontEnd> m_frontEnd;
    sdk::OnIdleAfterStateChangeActionPerformer m_titleUpdater;
    sdk::OnIdleAfterStateChangeActionPerformer m_memoryTidier;
};

} // namespace vantrix::app
