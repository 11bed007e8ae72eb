#include "app/BatchRun.h"
#include "app/CommandLine.h"
#include "app/MainWindow.h"
#include "app/ProgramSettings.h"
#include "app/VirtualDisplay.h"
#include "kernel/Kernel.h"
#include "kernel/StyleStore.h"

#include <QApplication>

#include <clocale>
#include <cstdlib>
#include <iostream>

namespace {

using namespace Qt::StringLiterals;
using vantrix::app::CommandLine;

CommandLine readCommandLine(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return CommandLine::parse(QCoreApplication::arguments());
}

int fail(const QString& text)
{
    std::cerr << "vxplot: " << text.toStdString() << '\n';
    return EXIT_FAILURE;
}

int runBatch(const CommandLine& commandLine, int argc, char** argv)
{
    // Without a window Qt needs no display, but rendering does.
    vantrix::app::VirtualDisplay display;
    const bool renders = !commandLine.exportPath.isEmpty();
    if (renders && !vantrix::app::VirtualDisplay::isDisplayThere() && !display.start()) {
        return fail(display.errorString());
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    return vantrix::app::BatchRun(commandLine).run();
}

int runWindow(const CommandLine& commandLine, int argc, char** argv)
{
    const bool needsX =
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (needsX && !vantrix::app::VirtualDisplay::isDisplayThere()) {
        return fail(u"there is no display to open a window on (DISPLAY is not set, or does not answer); "
                    "use --batch with --export to make a picture without one."_s);
    }
    const QApplication application(argc, argv);
    vantrix::kernel::Kernel& kernel = vantrix::kernel::Kernel::instance();
    vantrix::app::ProgramSettings::read(kernel.style());
    vantrix::app::MainWindow window(kernel);
    window.show();
    if (!commandLine.sample.isEmpty()) {
        window.openSample(commandLine.sample);
    }
    if (!commandLine.files.isEmpty()) {
        window.openFiles(commandLine.files);
    }
    if (!commandLine.macro.isEmpty()) {
        window.playMacro(commandLine.macro);
    }
    window.offerRecovery();
    const int status = QApplication::exec();
    vantrix::app::ProgramSettings::write(kernel.style());
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setOrganizationName(u"vxplot"_s);
    QCoreApplication::setApplicationName(u"vxplot"_s);
    QCoreApplication::setApplicationVersion(u"" VX_VERSION ""_s);
    QGuiApplication::setApplicationDisplayName(u"vxplot"_s);
    QGuiApplication::setDesktopFileName(u"vxplot"_s);

    const CommandLine commandLine = readCommandLine(argc, argv);
    switch (commandLine.task) {
    case CommandLine::Task::Answer:
        std::cout << commandLine.text.toStdString();
        return EXIT_SUCCESS;
    case CommandLine::Task::Rejected:
        return fail(commandLine.text);
    case CommandLine::Task::Batch:
    case CommandLine::Task::Dialogs:
        return runBatch(commandLine, argc, argv);
    case CommandLine::Task::Window:
        return runWindow(commandLine, argc, argv);
    }
    return EXIT_FAILURE;
}
