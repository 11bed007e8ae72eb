#include "AxisDialogTest.h"

#include "api/VtxUtilPick.h"

#include <QSpinBox>
#include <QStackedWidget>

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using testing::ElementsAre;

// What the user picked, in place of the host's own list.
PickedAxis& vantrix::test::pickedAxis()
{
    static PickedAxis picked;
    return picked;
}

char VtxUtilPickListGetAxisKind(long position)
{
    return position == 1 ? pickedAxis().kind : '\0';
}

int VtxUtilPickListGetAxisNumber(long position)
{
    return position == 1 ? pickedAxis().number : 0;
}

AxisSubObject_e VtxUtilPickListGetAxisSubObject(long position)
{
    return position == 1 ? pickedAxis().part : AxisSubObject_GridArea;
}

namespace {

class AxisEditDialogTest : public AxisDialogTest
{
protected:
    AxisEditDialog& launchOnPick(PickedAxis const& picked)
    {
        pickedAxis() = picked;
        auto& dialog = AxisEditDialog::getInstance(parent, DialogInitialization_Picked);
        show(dialog);
        return dialog;
    }

    static std::string currentTab(QDialog const& dialog)
    {
        return find<QTabWidget>(dialog, "rangePage").currentWidget()->objectName().toStdString();
    }

    static std::string currentButtons(QDialog const& dialog)
    {
        return find<QStackedWidget>(dialog, "plotTypeAxisStack").currentWidget()->objectName().toStdString();
    }
};

} // namespace

TEST_F(AxisEditDialogTest, TheAxesToChooseFromAreThoseOfThePlot)
{
    auto const& dialog = launch<AxisEditDialog>();
    for (auto const& [plotType, buttons] : {std::pair{PlotType_PolarLine, "polarAxisButtons"},
                                            {PlotType_Cartesian2D, "twoDAxisButtons"},
                                            {PlotType_XYLine, "xyLineAxisButtons"},
                                            {PlotType_Sketch, "twoDAxisButtons"},
                                            {PlotType_Cartesian3D, "threeDAxisButtons"}}) {
        setPlotType(plotType);
        EXPECT_EQ(currentButtons(dialog), buttons) << plotType;
    }
}

TEST_F(AxisEditDialogTest, AChosenAxisIsNamedByTheToggleThatShowsIt)
{
    auto const& dialog = launch<AxisEditDialog>();
    struct Case
    {
        PlotType_e plotType;
        char const* button;
        char const* text;
        vantrix::toolbox::StringList path;
        long number;
    };
    for (Case const& each :
         {Case{PlotType_PolarLine,
               "axisEdit_PickPolarRAxis_TXRadioButton",
               "&Show R-Axis",
               {"PolarAxis", "RDetail"},
               -1},
          Case{PlotType_PolarLine,
               "axisEdit_PickPolarThetaAxis_TXRadioButton",
               "&Show Theta-Axis",
               {"PolarAxis", "ThetaDetail"},
               -1},
          Case{PlotType_XYLine, "axisEdit_PickXYY4Axis_TXRadioButton", "&Show Y4-Axis", {"XYLineAxis", "YDetail"}, 4},
          Case{PlotType_XYLine, "axisEdit_PickXYX5Axis_TXRadioButton", "&Show X5-Axis", {"XYLineAxis", "XDetail"}, 5},
          Case{PlotType_Sketch, "axisEdit_Pick2DYAxis_TXRadioButton", "&Show Y-Axis", {"SketchAxis", "YDetail"}, -1},
          Case{PlotType_Cartesian3D,
               "axisEdit_Pick3DZAxis_TXRadioButton",
               "&Show Z-Axis",
               {"ThreeDAxis", "ZDetail"},
               -1}}) {
        setPlotType(each.plotType);
        click(dialog, each.button);
        EXPECT_EQ(showToggleText(dialog), each.text);
        auto const path = each.path + "ShowAxis";
        bool const before = axisStyle<bool>(path, each.number);
        EXPECT_EQ(isChecked(dialog, "axisEdit_PickShowAxis_ToggleButton"), before);
        click(dialog, "axisEdit_PickShowAxis_ToggleButton");
        EXPECT_NE(axisStyle<bool>(path, each.number), before) << each.text;
    }
}

TEST_F(AxisEditDialogTest, TheLastAxisIsEditedAgainWhereThePlotHasIt)
{
    setPlotType(PlotType_Cartesian3D);
    {
        QWidget other;
        auto& dialog = AxisEditDialog::getInstance(other);
        show(dialog);
        click(dialog, "axisEdit_Pick3DZAxis_TXRadioButton");
        dialog.drop();
    }
    {
        QWidget other;
        auto& dialog = AxisEditDialog::getInstance(other);
        show(dialog);
        EXPECT_TRUE(isChecked(dialog, "axisEdit_Pick3DZAxis_TXRadioButton")) << "the choice outlives the dialog";
        dialog.drop();
    }
    setPlotType(PlotType_Cartesian2D);
    auto const& dialog = launch<AxisEditDialog>();
    EXPECT_TRUE(isChecked(dialog, "axisEdit_Pick2DXAxis_TXRadioButton"));
    EXPECT_EQ(showToggleText(dialog), "&Show X-Axis");
}

TEST_F(AxisEditDialogTest, AnOpenDialogLeavesAnAxisThatThePlotNoLongerHas)
{
    setPlotType(PlotType_Cartesian3D);
    auto const& dialog = launch<AxisEditDialog>();
    click(dialog, "axisEdit_Pick3DZAxis_TXRadioButton");
    setPlotType(PlotType_Sketch);
    EXPECT_TRUE(isChecked(dialog, "axisEdit_Pick2DXAxis_TXRadioButton"));
    EXPECT_EQ(showToggleText(dialog), "&Show X-Axis");
}

TEST_F(AxisEditDialogTest, OpensOnThePickedAxisAndItsPart)
{
    struct Case
    {
        PlotType_e plotType;
        PickedAxis picked;
        char const* button;
        char const* text;
        char const* tab;
    };
    for (Case const& each : {Case{PlotType_PolarLine,
                                  {'R', 1, AxisSubObject_AxisLine},
                                  "axisEdit_PickPolarRAxis_TXRadioButton",
                                  "&Show R-Axis",
                                  "axisEdit_Line_Page"},
                             Case{PlotType_XYLine,
                                  {'Y', 3, AxisSubObject_Title},
                                  "axisEdit_PickXYY3Axis_TXRadioButton",
                                  "&Show Y3-Axis",
                                  "axisEdit_Title_Page"},
                             Case{PlotType_PolarLine,
                                  {'T', 1, AxisSubObject_GridArea},
                                  "axisEdit_PickPolarThetaAxis_TXRadioButton",
                                  "&Show Theta-Axis",
                                  "axisEdit_Grid_Page"},
                             Case{PlotType_Cartesian3D,
                                  {'Z', 1, AxisSubObject_AxisLine},
                                  "axisEdit_Pick3DZAxis_TXRadioButton",
                                  "&Show Z-Axis",
                                  "axisEdit_Line_Page"},
                             Case{PlotType_Cartesian3D,
                                  {'\0', 0, static_cast<AxisSubObject_e>(3)},
                                  "axisEdit_Pick3DZAxis_TXRadioButton",
                                  "&Show Z-Axis",
                                  "axisEdit_Line_Page"},
                             Case{PlotType_Cartesian3D,
                                  {'\0', 0, AxisSubObject_GridArea},
                                  "axisEdit_Pick3DZAxis_TXRadioButton",
                                  "&Show Z-Axis",
                                  "axisEdit_Grid_Page"}}) {
        setPlotType(each.plotType);
        auto const& dialog = launchOnPick(each.picked);
        EXPECT_TRUE(isChecked(dialog, each.button)) << each.text;
        EXPECT_EQ(showToggleText(dialog), each.text);
        EXPECT_EQ(currentTab(dialog), each.tab);
    }
}

TEST_F(AxisEditDialogTest, OnlyThePageOnShowIsAlive)
{
    setPlotType(PlotType_Cartesian2D);
    auto const& dialog = launch<AxisEditDialog>();
    showTab(dialog, "axisEdit_Range_Page");
    auto const& minimum = find<QDoubleSpinBox>(dialog, "axisEdit_RangeMin_1Text");
    auto& grid = find<QAbstractButton>(dialog, "axisEdit_GridShow_ToggleButton");
    setStyle({"TwoDAxis", "XDetail", "RangeMin"}, -2.0);
    EXPECT_EQ(minimum.value(), -2.0);
    grid.toggle();
    EXPECT_FALSE(axisStyle<bool>({"TwoDAxis", "XDetail", "GridLines", "Show"})) << "its page is not on show";

    showTab(dialog, "axisEdit_Grid_Page");
    EXPECT_FALSE(grid.isChecked()) << "a page shows the present values when it appears";
    setStyle({"TwoDAxis", "XDetail", "RangeMin"}, -3.0);
    EXPECT_EQ(minimum.value(), -2.0) << "its page is gone";
    grid.toggle();
    EXPECT_TRUE(axisStyle<bool>({"TwoDAxis", "XDetail", "GridLines", "Show"}));
    showTab(dialog, "axisEdit_Range_Page");
    EXPECT_EQ(minimum.value(), -3.0);
}

TEST_F(AxisEditDialogTest, HelpIsThatOfTheTab)
{
    auto const& dialog = launch<AxisEditDialog>();
    auto& tabs = find<QTabWidget>(dialog, "rangePage");
    for (int index = 0; index < tabs.count(); ++index) {
        tabs.setCurrentIndex(index);
        click(dialog, QDialogButtonBox::Help);
    }
    EXPECT_THAT(frontEnd.helpPages,
                ElementsAre("axis_details_range.html", "axis_details_grid.html", "axis_details_ticks.html",
                            "axis_details_label.html", "axis_details_title.html", "axis_details_line.html",
                            "axis_details_area.html"));
}
