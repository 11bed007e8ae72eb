#include "api/VtxUtilDialog.h"

#include "kernel/FrontEnd.h"
#include "kernel/interface/Boundary.h"

using namespace vantrix::kernel;

namespace {

std::string textOf(const char* text)
{
    return text ? text : "";
}

} // namespace

bool VtxUtilDialogMessageBox(const char* text, MessageBox_e type)
{
    return boundary::guarded(false, [&] { return Kernel::instance().frontEnd().showMessage(textOf(text), type); });
}

void VtxUtilDialogErrMsg(const char* text)
{
    VtxUtilDialogMessageBox(text, MessageBox_Error);
}

void VtxUtilStatusMessage(const char* text)
{
    boundary::guarded([&] { Kernel::instance().frontEnd().showStatus(textOf(text)); });
}

bool VtxUtilHelpLaunch(const char* page)
{
    return boundary::guarded(false, [&] {
        return Kernel::instance().frontEnd().openHelp(textOf(page)) ||
               boundary::fail("There is no help page \"" + textOf(page) + "\".");
    });
}

void VtxUtilWaitBegin(void)
{
    boundary::guarded([] { Kernel::instance().beginWait(); });
}

void VtxUtilWaitEnd(void)
{
    boundary::guarded([] { Kernel::instance().endWait(); });
}
