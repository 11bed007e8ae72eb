#pragma once

#include <vtkOutputWindow.h>
#include <vtkSmartPointer.h>

#include <string>

namespace vantrix::kernel::readers {

/*
 * While it lives, what VTK reports is kept here and neither printed nor shown. Libraries below VTK print on their own;
 * so the process's standard error goes nowhere meanwhile.
 */
class VtkMessages
{
public:
    VtkMessages();
    ~VtkMessages();
    VtkMessages(const VtkMessages&) = delete;
    VtkMessages& operator=(const VtkMessages&) = delete;

    /* The first failure reported, without VTK's source line and address; empty when there was none. A warning counts
     * when it tells of data that could not be read. */
    std::string failure() const;

private:
    class Window;
    vtkSmartPointer<Window> m_window;
    vtkSmartPointer<vtkOutputWindow> m_before;
    int m_standardError;
};

} // namespace vantrix::kernel::readers
