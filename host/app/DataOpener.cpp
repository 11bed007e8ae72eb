#include "app/DataOpener.h"

#include "kernel/DataError.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"
#include "kernel/OpenData.h"
#include "kernel/VariableMemory.h"

namespace vantrix::app {

using namespace Qt::StringLiterals;

DataOpener::DataOpener(kernel::Kernel& kernel)
    : m_kernel(kernel)
{}

bool DataOpener::openFiles(const QStringList& files)
{
    std::vector<std::string> names;
    for (const QString& file : files) {
        names.push_back(file.toStdString());
    }
    return attempt([&names](kernel::OpenData& open) { open.files(names); });
}

bool DataOpener::openSample(const QString& name)
{
    return attempt([&name](kernel::OpenData& open) { open.sample(name.toStdString()); });
}

bool DataOpener::attempt(const std::function<void(kernel::OpenData&)>& work)
{
    try {
        kernel::OpenData open(m_kernel);
        work(open);
        m_kernel.variableMemory().tidy();
        return true;
    } catch (const kernel::ActionCancelled& cancelled) {
        m_kernel.frontEnd().showStatus(cancelled.what());
    } catch (const std::bad_alloc&) {
        m_kernel.frontEnd().showMessage("There is not enough memory for these data. Nothing was changed.",
                                        MessageBox_Error);
    } catch (const std::exception& failure) {
        m_kernel.frontEnd().showMessage(failure.what(), MessageBox_Error);
    }
    return false;
}

QString DataOpener::fileDialogFilter()
{
    const QStringList formats{
        u"VTK XML (*.vti *.vtr *.vts *.vtp *.vtu *.vtm *.pvti *.pvtr *.pvts *.pvtp *.pvtu)"_s,
        u"VTK legacy (*.vtk)"_s,
        u"PLOT3D grid and solution (*.xyz *.x *.g *.grd *.p3d *.bin *.q)"_s,
        u"CGNS (*.cgns)"_s,
        u"EnSight (*.case *.encas)"_s,
        u"Exodus (*.e *.exo *.ex2 *.exii)"_s,
        u"Surfaces (*.stl *.ply)"_s,
    };
    QStringList patterns;
    for (const QString& format : formats) {
        patterns << format.section(u'(', 1).chopped(1);
    }
    return u"All data files (%1);;%2;;All files (*)"_s.arg(patterns.join(u' '), formats.join(u";;"_s));
}

} // namespace vantrix::app
