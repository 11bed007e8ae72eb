#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace vantrix::kernel {
class Kernel;
class OpenData;
} // namespace vantrix::kernel

namespace vantrix::app {

/* Opens data into the active frame, each time as one step of undo, and tells the user what went wrong. */
class DataOpener
{
public:
    explicit DataOpener(kernel::Kernel& kernel);

    /* False, after a message that names the file and the cause, when nothing was opened; the plot is then as it was. */
    bool openFiles(const QStringList& files);
    bool openSample(const QString& name);

    /* All formats, for a file dialog. */
    static QString fileDialogFilter();

private:
    bool attempt(const std::function<void(kernel::OpenData&)>& work);

    kernel::Kernel& m_kernel;
};

} // namespace vantrix::app
