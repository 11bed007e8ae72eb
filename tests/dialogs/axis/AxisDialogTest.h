#pragma once

#include "dialogs/axis/AxisEditDialog.h"
#include "kernel/Document.h"
#include "kernel/PlotDefaults.h"
#include "kernel/SampleData.h"
#include "support/KernelDialogTest.h"

#include <QTabWidget>

namespace vantrix::test {

/// What the replaced functions of the pick list answer.
struct PickedAxis
{
    char kind = '\0';
    int number = 0;
    AxisSubObject_e part = AxisSubObject_GridArea;
};
PickedAxis& pickedAxis();

/// The axis dialog over plots of the kernel.
class AxisDialogTest : public KernelDialogTest
{
protected:
    AxisDialogTest() { pickedAxis() = {}; }

    /// The axis that was edited last lives as long as the process: leave it as it was at first.
    void TearDown() override
    {
        if (VtxUtilFrameGetCount() > 0) {
            setPlotType(PlotType_XYLine);
            click(launch<sdk::ui::dialogs::AxisEditDialog>(), "axisEdit_PickXYX1Axis_TXRadioButton");
        }
    }

    /// A frame without data gets some first: all plots but sketches need them.
    static void setPlotType(PlotType_e plotType)
    {
        if (!VtxUtilDataSetIsAvailable()) {
            showSample("flow3d");
        }
        setStyle({"PlotType"}, static_cast<long>(plotType));
    }

    /// Gives the active frame a built-in data set and a plot of it.
    static void showSample(std::string const& name)
    {
        {
            sdk::AppLock const lock;
            auto& document = kernel::Kernel::instance().document();
            kernel::DataSet data = document.newDataSet();
            kernel::SampleData::make(name, data);
            document.attachDataSet(*document.activeFrame(), std::make_shared<kernel::DataSet const>(std::move(data)));
            kernel::PlotDefaults::apply(*document.activeFrame());
        }
        idle();
    }

    /// A value of an axis, "XDetail" and so on with a number where axes have one.
    template<typename T>
    static T axisStyle(toolbox::StringList const& path, long number = -1)
    {
        T value{};
        EXPECT_EQ(toolbox::StyleValue(path).getValue(&value, number), GetValueReturnCode_Ok) << path[path.size() - 1];
        return value;
    }

    static void showTab(QDialog const& dialog, char const* page)
    {
        find<QTabWidget>(dialog, "rangePage").setCurrentWidget(&find(dialog, page));
        idle();
    }

    static std::string showToggleText(QDialog const& dialog)
    {
        return find<QAbstractButton>(dialog, "axisEdit_PickShowAxis_ToggleButton").text().toStdString();
    }
};

} // namespace vantrix::test
