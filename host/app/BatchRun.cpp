#include "app/BatchRun.h"

#include "api/VtxUtilDocument.h"
#include "app/BatchFrontEnd.h"
#include "app/DataOpener.h"
#include "app/DialogPictures.h"
#include "app/LayoutFiles.h"
#include "app/PictureExport.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "view/PageRenderer.h"

#include <cstdlib>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

/* Dialogs are of use with data only. */
const auto sampleOfDialogs = "flow3d"_L1;

/* Makes a front end the kernel's for as long as the object lives. */
class FrontEndInUse
{
public:
    FrontEndInUse(kernel::Kernel& kernel, kernel::FrontEnd& frontEnd)
        : m_kernel(kernel)
    {
        m_kernel.setFrontEnd(&frontEnd);
    }
    ~FrontEndInUse() { m_kernel.setFrontEnd(nullptr); }
    FrontEndInUse(const FrontEndInUse&) = delete;
    FrontEndInUse& operator=(const FrontEndInUse&) = delete;

private:
    kernel::Kernel& m_kernel;
};

/* Shows the host's text of a failure. */
bool tell(bool isDone)
{
    const kernel::Kernel& kernel = kernel::Kernel::instance();
    if (!isDone) {
        kernel.frontEnd().showMessage(kernel.lastError(), MessageBox_Error);
    }
    return isDone;
}

} // namespace

BatchRun::BatchRun(const CommandLine& commandLine)
    : m_commandLine(commandLine)
{}

int BatchRun::run()
{
    BatchFrontEnd frontEnd;
    const FrontEndInUse inUse(kernel::Kernel::instance(), frontEnd);
    const bool isDone = open() && playMacro() &&
                        (m_commandLine.task == CommandLine::Task::Dialogs ? saveDialogPictures() : exportPicture());
    return isDone && !frontEnd.hasFailed() ? EXIT_SUCCESS : EXIT_FAILURE;
}

bool BatchRun::open()
{
    DataOpener opener(kernel::Kernel::instance());
    const QStringList& files = m_commandLine.files;
    if (files.size() == 1 && LayoutFiles::isLayout(files.first())) {
        return tell(VtxUtilLayoutOpen(files.first().toUtf8().constData()));
    }
    if (!files.isEmpty()) {
        return opener.openFiles(files);
    }
    const bool isMacroAlone = m_commandLine.task == CommandLine::Task::Batch && m_commandLine.sample.isEmpty();
    return isMacroAlone ||
           opener.openSample(m_commandLine.sample.isEmpty() ? QString(sampleOfDialogs) : m_commandLine.sample);
}

bool BatchRun::playMacro()
{
    return m_commandLine.macro.isEmpty() || tell(VtxUtilMacroRun(m_commandLine.macro.toUtf8().constData()));
}

bool BatchRun::exportPicture()
{
    if (m_commandLine.exportPath.isEmpty()) {
        return true;
    }
    kernel::Kernel& kernel = kernel::Kernel::instance();
    view::PageRenderer renderer(kernel);
    const PictureExport picture(renderer, *kernel.document().activePage());
    const QSize size =
        m_commandLine.exportDensity > 0 ? picture.sizeAt(m_commandLine.exportDensity) : m_commandLine.exportSize;
    const QString problem = picture.write(m_commandLine.exportPath, size);
    if (!problem.isEmpty()) {
        kernel.frontEnd().showMessage(problem.toStdString(), MessageBox_Error);
    }
    return problem.isEmpty();
}

bool BatchRun::saveDialogPictures()
{
    const QString problem = DialogPictures(m_commandLine.dialogsDirectory).save();
    if (!problem.isEmpty()) {
        kernel::Kernel::instance().frontEnd().showMessage(problem.toStdString(), MessageBox_Error);
    }
    return problem.isEmpty();
}

} // namespace vantrix::app
