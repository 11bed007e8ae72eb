#pragma once

#include "kernel/FrontEnd.h"

namespace vantrix::app {

/* Runs without a window: messages go to the standard error stream, questions are answered with yes. */
class BatchFrontEnd : public kernel::FrontEnd
{
public:
    bool showMessage(const std::string& text, MessageBox_e type) override;
    void showStatus(const std::string& text) override;
    void setBusy(bool) override {}
    bool reportProgress(const std::string&, double) override { return true; }
    bool openHelp(const std::string&) override { return false; }
    void fitPaperToWorkArea() override {}

    /* Whether an error was shown. */
    bool hasFailed() const { return m_hasFailed; }

private:
    bool m_hasFailed = false;
};

} // namespace vantrix::app
