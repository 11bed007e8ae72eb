#pragma once

#include "dialogs/probe/ProbeDialog.h"
#include "dialogs/probe/ProbeWidget.h"
#include "kernel/Document.h"
#include "kernel/OpenData.h"
#include "support/KernelDialogTest.h"
#include "toolbox/ArgList.h"

#include <QStackedWidget>
#include <QTableWidget>

namespace vantrix::test {

/// Probe dialogs over the real kernel.
class ProbeDialogsTest : public KernelDialogTest
{
protected:
    using ProbeDialog = sdk::ui::dialogs::ProbeDialog;

    ~ProbeDialogsTest() override { qDeleteAll(parent.findChildren<QDialog*>(Qt::FindDirectChildrenOnly)); }

    static void open(char const* sample)
    {
        {
            sdk::AppLock const lock;
            kernel::OpenData(kernel::Kernel::instance()).sample(sample);
        }
        idle();
    }

    static bool probeAt(double x, double y, double z, bool isInVolume = false)
    {
        sdk::AppLock const lock(false);
        toolbox::ArgList arguments;
        arguments.appendDouble("X", x);
        arguments.appendDouble("Y", y);
        arguments.appendDouble("Z", z);
        arguments.appendArbParam("SearchVolume", isInVolume);
        bool const isFound = VtxUtilProbeAtFieldPositionX(arguments.handle());
        idle();
        return isFound;
    }

    static bool probeIndex(long i, long j, long k, long zone = 1)
    {
        sdk::AppLock const lock(false);
        toolbox::ArgList arguments;
        arguments.appendArbParam("I", i);
        arguments.appendArbParam("J", j);
        arguments.appendArbParam("K", k);
        arguments.appendArbParam("Zone", zone);
        bool const isFound = VtxUtilProbeAtFieldIndexX(arguments.handle());
        idle();
        return isFound;
    }

    static bool probeLineAt(char axis, double position)
    {
        sdk::AppLock const lock(false);
        toolbox::ArgList arguments;
        arguments.appendDouble("Position", position);
        arguments.appendArbParam("Axis", axis);
        arguments.appendArbParam("AxisNum", 1);
        bool const isFound = VtxUtilProbeAtLinePositionX(arguments.handle());
        idle();
        return isFound;
    }

    static bool probeLinePoint(long i, long lineMap)
    {
        sdk::AppLock const lock(false);
        toolbox::ArgList arguments;
        arguments.appendArbParam("I", i);
        arguments.appendArbParam("LineMap", lineMap);
        bool const isFound = VtxUtilProbeAtLineIndexX(arguments.handle());
        idle();
        return isFound;
    }

    static void changeVariable(std::size_t zone, std::size_t variable, double factor)
    {
        {
            sdk::AppLock const lock;
            kernel::Document& document = kernel::Kernel::instance().document();
            kernel::DataSet changed = *document.activeDataSet();
            kernel::Zone copy = *changed.zones[zone];
            auto values = vtkSmartPointer<vtkDataArray>::Take(copy.fields[variable].values->NewInstance());
            values->DeepCopy(copy.fields[variable].values);
            for (vtkIdType i = 0; i < values->GetNumberOfTuples(); ++i) {
                values->SetComponent(i, 0, factor * values->GetComponent(i, 0));
            }
            copy.fields[variable].values = values;
            changed.zones[zone] = std::make_shared<kernel::Zone const>(std::move(copy));
            document.replaceDataSet(std::move(changed), {StateChange_VarsAltered});
        }
        idle();
    }

    /// Takes a variable of a zone out of memory, to be loaded again on demand.
    static void unload(std::size_t zone, std::size_t variable)
    {
        {
            sdk::AppLock const lock;
            kernel::Document& document = kernel::Kernel::instance().document();
            kernel::DataSet changed = *document.activeDataSet();
            kernel::Zone copy = *changed.zones[zone];
            copy.fields[variable].loader = [values = copy.fields[variable].values] { return values; };
            copy.fields[variable].values = nullptr;
            changed.zones[zone] = std::make_shared<kernel::Zone const>(std::move(copy));
            document.replaceDataSet(std::move(changed), {StateChange_DataAvailability});
        }
        idle();
    }

    static QTableWidget& table(QWidget const& dialog, char const* name) { return find<QTableWidget>(dialog, name); }

    static std::string cell(QTableWidget const& shown, int row, int column)
    {
        QTableWidgetItem const* const item = shown.item(row, column);
        return item ? item->text().toStdString() : "<none>";
    }

    /// The second column of the row that begins with a text.
    static std::string valueOf(QTableWidget const& shown, std::string const& item)
    {
        for (int row = 0; row < shown.rowCount(); ++row) {
            if (cell(shown, row, 0) == item) {
                return cell(shown, row, 1);
            }
        }
        return "<no row " + item + ">";
    }

    static void showTab(ProbeDialog& dialog, FieldProbeDialogPage_e page)
    {
        find<QTabWidget>(dialog, "cartesianProbe_tabWidget").setCurrentIndex(page);
        idle();
    }

    static std::string pageOf(QWidget const& dialog, char const* stack)
    {
        return find<QStackedWidget>(dialog, stack).currentWidget()->objectName().toStdString();
    }
};

} // namespace vantrix::test
