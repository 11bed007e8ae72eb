#pragma once

#include "app/CommandLine.h"

namespace vantrix::app {

/* vxplot without a window: opens what the command line names, saves pictures, and gives the exit status of the process.
 * What goes wrong is told on the standard error stream. */
class BatchRun
{
public:
    explicit BatchRun(const CommandLine& commandLine);

    int run();

private:
    bool open();
    bool playMacro();
    bool exportPicture();
    bool saveDialogPictures();

    const CommandLine& m_commandLine;
};

} // namespace vantrix::app
