#pragma once

#include "kernel/FrontEnd.h"

#include <functional>

class QWidget;

namespace vantrix::app {

class HelpWindow;
class StatusLine;

/* What the kernel asks of the user, asked with the application's window. */
class WindowFrontEnd : public kernel::FrontEnd
{
public:
    struct Parts
    {
        QWidget& window;
        StatusLine& statusLine;
        HelpWindow& helpWindow;
        std::function<void()> fitPaper;
        std::function<double(long frameId, char axis, int axisNumber)> tickSpacing;
    };

    explicit WindowFrontEnd(Parts parts);
    ~WindowFrontEnd() override;

    bool showMessage(const std::string& text, MessageBox_e type) override;
    void showStatus(const std::string& text) override;
    void setBusy(bool busy) override;
    bool reportProgress(const std::string& task, double fraction) override;
    bool openHelp(const std::string& page) override;
    void fitPaperToWorkArea() override;
    double drawnTickSpacing(long frameId, char axis, int axisNumber) const override;

private:
    Parts m_parts;
    int m_busyCount = 0;
};

} // namespace vantrix::app
