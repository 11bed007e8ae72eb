#include "kernel/readers/VtkMessages.h"

#include <vtkObjectFactory.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace vantrix::kernel::readers {

namespace {

/* "ERROR: In file.cxx, line 1\nvtkReader (0x1234): text\n\n" */
std::string withoutSource(const std::string& message)
{
    std::string text = message;
    const std::size_t line = text.find('\n');
    if (line != std::string::npos && text.find(": In ") < line) {
        text.erase(0, line + 1);
    }
    const std::size_t address = text.find("): ");
    if (address != std::string::npos && text.rfind("vtk", 0) == 0) {
        text.erase(0, address + 3);
    }
    std::replace(text.begin(), text.end(), '\n', ' ');
    text.erase(std::find_if(text.rbegin(), text.rend(), [](char c) { return c != ' ' && c != '.'; }).base(),
               text.end());
    return text;
}

bool tellsOfMissingData(const std::string& warning)
{
    static constexpr std::array signs{"rror reading", "nable to read", "ould not read", "annot read", "nexpected end",
                                      "remature",     "truncated",     "end of file",   "EOF"};
    return std::any_of(signs.begin(), signs.end(),
                       [&](const char* sign) { return warning.find(sign) != std::string::npos; });
}

} // namespace

class VtkMessages::Window : public vtkOutputWindow
{
public:
    static Window* New();
    vtkTypeMacro(Window, vtkOutputWindow)

        void DisplayErrorText(const char* text) override
    {
        keep(text);
    }
    void DisplayWarningText(const char* text) override
    {
        if (tellsOfMissingData(text)) {
            keep(text);
        }
    }
    void DisplayGenericWarningText(const char* text) override { DisplayWarningText(text); }
    void DisplayText(const char*) override {}
    void DisplayDebugText(const char*) override {}

    std::string failure;

private:
    void keep(const char* text)
    {
        if (failure.empty()) {
            failure = withoutSource(text);
        }
    }
};

vtkStandardNewMacro(VtkMessages::Window);

VtkMessages::VtkMessages()
    : m_window(vtkSmartPointer<Window>::New())
    , m_before(vtkOutputWindow::GetInstance())
    , m_standardError(dup(STDERR_FILENO))
{
    std::fflush(stderr);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDERR_FILENO);
    close(nowhere);
    vtkOutputWindow::SetInstance(m_window);
}

VtkMessages::~VtkMessages()
{
    vtkOutputWindow::SetInstance(m_before);
    std::fflush(stderr);
    dup2(m_standardError, STDERR_FILENO);
    close(m_standardError);
}

std::string VtkMessages::failure() const
{
    return m_window->failure;
}

} // namespace vantrix::kernel::readers
