#pragma once

#include "kernel/FrontEnd.h"

namespace vantrix::kernel {

/* Shows nothing, agrees to every question and never cancels. */
class SilentFrontEnd : public FrontEnd
{
public:
    bool showMessage(const std::string&, MessageBox_e) override { return true; }
    void showStatus(const std::string&) override {}
    void setBusy(bool) override {}
    bool reportProgress(const std::string&, double) override { return true; }
    bool openHelp(const std::string&) override { return false; }
    void fitPaperToWorkArea() override {}
};

} // namespace vantrix::kernel
