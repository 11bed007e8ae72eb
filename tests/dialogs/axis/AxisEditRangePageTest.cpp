#include "AxisDialogTest.h"
#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "toolbox/StyleValue.h"

#include <QLabel>
#include <QMenu>
#include <QSpinBox>

#include <numbers>

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AxisEditRangePageTest : public AxisDialogTest
{
protected:
    AxisEditDialog& openOn(PlotType_e plotType)
    {
        setPlotType(plotType);
        auto& dialog = launch<AxisEditDialog>();
        showTab(dialog, "axisEdit_Range_Page");
        return dialog;
    }

    /// Opens the menu of a button.
    static QMenu& openMenu(QDialog const& dialog, char const* button)
    {
        click(dialog, button);
        auto* const menu = find<QWidget>(dialog, button).findChild<QMenu*>();
        if (!menu) {
            throw std::runtime_error(std::string("no menu of ") + button);
        }
        return *menu;
    }

    static std::vector<std::string> entries(QMenu const& menu)
    {
        std::vector<std::string> texts;
        for (QAction const* action : menu.actions()) {
            texts.push_back(action->text().toStdString());
        }
        return texts;
    }

    static QAction& entry(QMenu const& menu, char const* text)
    {
        for (QAction* action : menu.actions()) {
            if (action->text() == QString::fromUtf8(text)) {
                return *action;
            }
        }
        throw std::runtime_error(std::string("no entry ") + text);
    }

    static void trigger(QMenu& menu, char const* text)
    {
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&entry(menu, text)).center());
        idle();
    }

    static QLineEdit& field(QDialog const& dialog, char const* item)
    {
        auto& widget = find<QWidget>(dialog, (std::string("axisEdit_RangeAxisSpec") + item + "_1Text").c_str());
        auto* const edit = qobject_cast<QLineEdit*>(&widget);
        return edit ? *edit : *widget.findChild<QLineEdit*>();
    }

    static double theta(char const* value) { return styleOf<double>({"PolarAxis", "ThetaDetail", value}); }
    static bool isHidden(QDialog const& dialog, char const* widget) { return find<QWidget>(dialog, widget).isHidden(); }

    static constexpr char const* resetButton = "axisEdit_RangeReset_Button";
    static constexpr char const* thetaButton = "axisEdit_RangeAxisSpecThetaReset_Button";
};

} // namespace

TEST_F(AxisEditRangePageTest, TheResetMenuOffersWhatThePlotHas)
{
    auto const& dialog = openOn(PlotType_PolarLine);
    EXPECT_THAT(entries(openMenu(dialog, resetButton)),
                ElementsAre("Reset to entire circle", "Reset to nice values", "Reset to variable min/max",
                            "Make current values nice"));
    setPlotType(PlotType_XYLine);
    EXPECT_THAT(entries(openMenu(dialog, resetButton)),
                ElementsAre("Reset to nice values", "Reset to variable min/max", "Make current values nice"));
    for (PlotType_e const plotType : {PlotType_Cartesian3D, PlotType_Cartesian2D}) {
        setPlotType(plotType);
        QMenu const& menu = openMenu(dialog, resetButton);
        EXPECT_EQ(menu.actions().size(), 4);
        EXPECT_EQ(entry(menu, "Reset to non-blanked variable min/max").isEnabled(), VtxUtilBlankingIsActive());
    }
}

TEST_F(AxisEditRangePageTest, AResetIsOneStepAndSeenInTheFields)
{
    showSample("fe2d");
    auto const& dialog = openOn(PlotType_Cartesian2D);
    auto const& minimum = find<QDoubleSpinBox>(dialog, "axisEdit_RangeMin_1Text");
    setStyle({"TwoDAxis", "XDetail", "RangeMin"}, 0.037);
    setStyle({"TwoDAxis", "XDetail", "RangeMax"}, 0.871);
    trigger(openMenu(dialog, resetButton), "Make current values nice");
    EXPECT_EQ(minimum.value(), 0.0);
    EXPECT_EQ(styleOf<double>({"TwoDAxis", "XDetail", "RangeMax"}), 1.0);
    VtxUtilUndo();
    idle();
    EXPECT_EQ(minimum.value(), 0.037);

    double low = 0;
    double high = 0;
    VtxUtilVarGetMinMax(1, &low, &high);
    trigger(openMenu(dialog, resetButton), "Reset to variable min/max");
    EXPECT_EQ(minimum.value(), low);
    EXPECT_EQ(find<QDoubleSpinBox>(dialog, "axisEdit_RangeMax_1Text").value(), high);
    EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(AxisEditRangePageTest, AResetThatTheHostRefusesIsTold)
{
    auto const& dialog = openOn(PlotType_Sketch);
    trigger(openMenu(dialog, resetButton), "Reset to variable min/max");
    EXPECT_THAT(frontEnd.messages, ElementsAre(testing::HasSubstr("shows no data")));
}

TEST_F(AxisEditRangePageTest, ThetaModesSetUnitPeriodAndRangeInOneStep)
{
    auto const& dialog = openOn(PlotType_PolarLine);
    constexpr double pi = std::numbers::pi;
    struct Case
    {
        char const* entry;
        long mode;
        double period, minimum, maximum, spacing;
        char const* text;
    };
    for (Case const& each : {Case{"-180 to 180 Degrees", 0, 360, -180, 180, 30, "Theta Mode: Degrees"},
                             Case{"0 to 2Pi Radians", 1, 2 * pi, 0, 2 * pi, pi / 6, "Theta Mode: Radians"},
                             Case{"-Pi to Pi Radians", 1, 2 * pi, -pi, pi, pi / 6, "Theta Mode: Radians"},
                             Case{"0 to 360 Degrees", 0, 360, 0, 360, 30, "Theta Mode: Degrees"}}) {
        setStyle({"PolarAxis", "ThetaDetail", "ValueAtOrigin"}, 17.0);
        double const before = theta("RangeMin");
        trigger(openMenu(dialog, thetaButton), each.entry);
        EXPECT_EQ(styleOf<long>({"PolarAxis", "ThetaMode"}), each.mode) << each.entry;
        EXPECT_DOUBLE_EQ(styleOf<double>({"PolarAxis", "ThetaPeriod"}), each.period);
        EXPECT_DOUBLE_EQ(theta("ValueAtOrigin"), 0.0);
        EXPECT_DOUBLE_EQ(theta("RangeMin"), each.minimum);
        EXPECT_DOUBLE_EQ(theta("RangeMax"), each.maximum);
        EXPECT_DOUBLE_EQ(theta("GRSpacing"), each.spacing);
        EXPECT_EQ(find<QLabel>(dialog, "axisEdit_RangeAxisSpecThetaMode_Label").text().toStdString(), each.text);
        VtxUtilUndo();
        EXPECT_EQ(theta("RangeMin"), before) << "one step takes all of it back";
        EXPECT_EQ(theta("ValueAtOrigin"), 17.0);
        trigger(openMenu(dialog, thetaButton), each.entry);
    }
}

TEST_F(AxisEditRangePageTest, FittingThetaMakesItsUnitArbitraryAndItsPeriodEditable)
{
    showSample("polar");
    auto const& dialog = openOn(PlotType_PolarLine);
    trigger(openMenu(dialog, thetaButton), "0 to 360 Degrees");
    EXPECT_FALSE(field(dialog, "ThetaPeriod").isEnabled());
    setStyle({"PolarAxis", "PreserveAxisScale"}, 1L);
    trigger(openMenu(dialog, thetaButton), "Fit to Var Min/Max");
    double low = 0;
    double high = 0;
    VtxUtilVarGetMinMax(1, &low, &high);
    EXPECT_DOUBLE_EQ(theta("RangeMin"), low);
    EXPECT_DOUBLE_EQ(theta("RangeMax"), high);
    EXPECT_DOUBLE_EQ(theta("GRSpacing"), (high - low) / 12);
    EXPECT_TRUE(styleOf<bool>({"PolarAxis", "PreserveAxisScale"})) << "put back after the fit";
    EXPECT_EQ(find<QLabel>(dialog, "axisEdit_RangeAxisSpecThetaMode_Label").text(),
              QStringLiteral("Theta Mode: Arbitrary"));
    EXPECT_TRUE(field(dialog, "ThetaPeriod").isEnabled());

    setStyle({"PolarAxis", "ThetaDetail", "RangeMin"}, -900.0);
    setStyle({"PolarAxis", "ThetaDetail", "RangeMax"}, -500.0);
    trigger(openMenu(dialog, thetaButton), "0 to 360 Degrees");
    EXPECT_EQ(theta("RangeMin"), 0.0) << "above where the range ended before";
    setStyle({"PolarAxis", "ThetaDetail", "ValueAtOrigin"}, 17.0);
    {
        vantrix::sdk::AppLock const lock;
        vantrix::toolbox::StyleValue const isActive("ActiveLineMaps");
        for (long map = 1; map <= VtxUtilLineMapGetCount(); ++map) {
            EXPECT_EQ(isActive.setValue(false, map), SetValueReturnCode_Ok);
        }
    }
    trigger(openMenu(dialog, thetaButton), "Fit to Var Min/Max");
    EXPECT_EQ(frontEnd.messages.size(), 1U) << "no data are shown";
    EXPECT_EQ(styleOf<long>({"PolarAxis", "ThetaMode"}), ThetaMode_Degrees);
    EXPECT_EQ(theta("ValueAtOrigin"), 17.0);
    EXPECT_EQ(theta("RangeMax"), 360.0);
}

TEST_F(AxisEditRangePageTest, ASizeFactorOfZeroLeavesTheOldOne)
{
    auto const& dialog = openOn(PlotType_Cartesian3D);
    setStyle({"ThreeDAxis", "AxisMode"}, long{AxisMode_Independent});
    enter(field(dialog, "3DYScaleFact"), "2.5");
    EXPECT_EQ(styleOf<double>({"GlobalThreeD", "AxisScale", "Y"}), 2.5);
    QTest::keyClick(field(dialog, "3DYScaleFact").parentWidget(), Qt::Key_Up);
    EXPECT_EQ(styleOf<double>({"GlobalThreeD", "AxisScale", "Y"}), 2.75) << "proportions step by a tenth";
    QTest::keyClick(field(dialog, "3DYScaleFact").parentWidget(), Qt::Key_Down);
    enter(field(dialog, "3DYScaleFact"), "2.5");
    enter(field(dialog, "3DYScaleFact"), "0");
    EXPECT_EQ(styleOf<double>({"GlobalThreeD", "AxisScale", "Y"}), 2.5);
    EXPECT_EQ(textOf(field(dialog, "3DYScaleFact")), "2.5");
    EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(AxisEditRangePageTest, TheRatioIsNamedByTheAxesOfThePlot)
{
    auto const& dialog = openOn(PlotType_XYLine);
    auto const& label = find<QLabel>(dialog, "axisEdit_RangeAxisSpec2DRatio_Label");
    EXPECT_EQ(label.text(), QStringLiteral("X1 to Y1 Ratio"));
    setPlotType(PlotType_Cartesian2D);
    EXPECT_EQ(label.text(), QStringLiteral("X to Y Ratio"));
    setPlotType(PlotType_XYLine);
    EXPECT_EQ(label.text(), QStringLiteral("X1 to Y1 Ratio"));
}

TEST_F(AxisEditRangePageTest, DependencyIsOfferedWhereTheHostAllowsIt)
{
    auto const& dialog = openOn(PlotType_XYLine);
    char const* const dependent = "axisEdit_RangeAxisSpec2DDependent_RadioButton";
    EXPECT_TRUE(isEnabled(dialog, dependent));
    EXPECT_FALSE(field(dialog, "2DRatio").isEnabled()) << "independent axes have no ratio";
    click(dialog, dependent);
    EXPECT_EQ(styleOf<long>({"XYLineAxis", "AxisMode"}), AxisMode_XYDependent);
    EXPECT_TRUE(field(dialog, "2DRatio").isEnabled());
    click(dialog, "axisEdit_RangeLogScale_ToggleButton");
    EXPECT_EQ(axisStyle<long>({"XYLineAxis", "XDetail", "CoordScale"}, 1), CoordScale_Log);
    EXPECT_FALSE(isEnabled(dialog, dependent));
    EXPECT_FALSE(field(dialog, "2DRatio").isEnabled());

    setPlotType(PlotType_Cartesian3D);
    click(dialog, "axisEdit_RangeAxisSpec3DXY_RadioButton");
    EXPECT_TRUE(field(dialog, "3DXYRatio").isEnabled());
    EXPECT_FALSE(field(dialog, "3DXZRatio").isEnabled());
    click(dialog, "axisEdit_RangeAxisSpec3DXYZ_RadioButton");
    EXPECT_EQ(styleOf<long>({"ThreeDAxis", "AxisMode"}), AxisMode_XYZDependent);
    EXPECT_TRUE(field(dialog, "3DXZRatio").isEnabled());
}

TEST_F(AxisEditRangePageTest, TurningOnNiceValuesMakesTheRangeNiceAtOnce)
{
    auto const& dialog = openOn(PlotType_Cartesian2D);
    char const* const toggle = "axisEdit_RangeAutoAdjustToNiceValues_ToggleButton";
    setStyle({"TwoDAxis", "XDetail", "RangeMin"}, 0.1);
    setStyle({"TwoDAxis", "XDetail", "RangeMax"}, 9.3);
    click(dialog, toggle);
    EXPECT_EQ(styleOf<double>({"TwoDAxis", "XDetail", "RangeMax"}), 10.0);
    setStyle({"TwoDAxis", "XDetail", "RangeMax"}, 9.3);
    click(dialog, toggle);
    EXPECT_FALSE(styleOf<bool>({"TwoDAxis", "AutoAdjustRangesToNiceValues"}));
    EXPECT_EQ(styleOf<double>({"TwoDAxis", "XDetail", "RangeMax"}), 9.3) << "turning it off only stores the flag";
}

TEST_F(AxisEditRangePageTest, SpinBoxesStepToWhatTheHostSays)
{
    auto const& dialog = openOn(PlotType_Cartesian2D);
    setStyle({"TwoDAxis", "XDetail", "RangeMin"}, 0.0);
    setStyle({"TwoDAxis", "XDetail", "RangeMax"}, 2.0);
    auto& minimum = find<QDoubleSpinBox>(dialog, "axisEdit_RangeMin_1Text");
    minimum.setFocus();
    QTest::keyClick(&minimum, Qt::Key_Up);
    EXPECT_EQ(styleOf<double>({"TwoDAxis", "XDetail", "RangeMin"}), 0.1);
    QTest::keyClick(&minimum, Qt::Key_Down);
    EXPECT_EQ(styleOf<double>({"TwoDAxis", "XDetail", "RangeMin"}), 0.005) << "a twentieth of the present range";
}

TEST_F(AxisEditRangePageTest, ARangeThatIsNotInOrderIsRefusedWithTheAxisAndTheFieldShowsTheOldValue)
{
    showSample("lines");
    auto const& dialog = openOn(PlotType_XYLine);
    click(dialog, "axisEdit_PickXYX2Axis_TXRadioButton");
    auto& minimum = find<QDoubleSpinBox>(dialog, "axisEdit_RangeMin_1Text");
    auto const typed = [&](char const* text) {
        minimum.setFocus();
        minimum.selectAll();
        QTest::keyClicks(&minimum, QString::fromLatin1(text));
        QTest::keyClick(&minimum, Qt::Key_Return);
        idle();
    };
    typed("7");
    EXPECT_THAT(frontEnd.messages,
                ElementsAre("The minimum of axis X2 has to be below its maximum, which is 1; 7 is not."));
    EXPECT_EQ(axisStyle<double>({"XYLineAxis", "XDetail", "RangeMin"}, 2), 0.0);
    EXPECT_EQ(minimum.value(), 0.0);

    click(dialog, "axisEdit_RangeLogScale_ToggleButton");
    EXPECT_GT(minimum.value(), 0.0) << "a logarithmic axis begins above 0";
    double const before = minimum.value();
    minimum.setFocus();
    QTest::keyClick(&minimum, Qt::Key_Up);
    EXPECT_GT(minimum.value(), before);
    typed("-1");
    EXPECT_THAT(frontEnd.messages.back(), testing::HasSubstr("X2 has to be above 0"));
    EXPECT_GT(minimum.value(), before);
}

TEST_F(AxisEditRangePageTest, ControlsThatThePlotOrAxisHasNoUseForAreHidden)
{
    struct Case
    {
        PlotType_e plotType;
        std::vector<char const*> shown;
    };
    std::vector<char const*> const all{"axisEdit_RangeLogScale_ToggleButton",
                                       "axisEdit_RangePolarClipToAxis_ToggleButton",
                                       "axisEdit_RangeAutoAdjustToNiceValues_ToggleButton",
                                       "axisEdit_RangeAxisSpec2D_Form",
                                       "axisEdit_RangeAxisSpec3D_Form",
                                       "axisEdit_RangeAxisSpecTheta_Form",
                                       "axisEdit_RangeAxisSpecR_Form"};
    auto const& dialog = openOn(PlotType_Cartesian3D);
    for (Case const& each : {Case{PlotType_Cartesian3D, {all[4]}}, Case{PlotType_Cartesian2D, {all[2], all[3]}},
                             Case{PlotType_XYLine, {all[0], all[2], all[3]}}, Case{PlotType_Sketch, {all[2]}},
                             Case{PlotType_PolarLine, {all[1], all[5]}}}) {
        setPlotType(each.plotType);
        for (char const* widget : all) {
            EXPECT_EQ(!isHidden(dialog, widget), testing::Value(each.shown, Contains(widget)))
                << widget << " in plot type " << each.plotType;
        }
    }
    click(dialog, "axisEdit_PickPolarRAxis_TXRadioButton");
    EXPECT_FALSE(isHidden(dialog, "axisEdit_RangeAxisSpecR_Form"));
    EXPECT_FALSE(isHidden(dialog, "axisEdit_RangeLogScale_ToggleButton"));
    EXPECT_TRUE(isHidden(dialog, "axisEdit_RangeAxisSpecTheta_Form"));
}

TEST_F(AxisEditRangePageTest, AnAxisThatDependsOnXHasNoSizeFactor)
{
    auto const& dialog = openOn(PlotType_Cartesian3D);
    struct
    {
        AxisMode_e mode;
        bool hasY, hasZ;
    } const cases[] = {
        {AxisMode_Independent, true, true}, {AxisMode_XYDependent, false, true}, {AxisMode_XYZDependent, false, false}};
    for (auto const& each : cases) {
        setStyle({"ThreeDAxis", "AxisMode"}, long{each.mode});
        EXPECT_TRUE(field(dialog, "3DXScaleFact").isEnabled());
        EXPECT_EQ(field(dialog, "3DYScaleFact").isEnabled(), each.hasY) << each.mode;
        EXPECT_EQ(field(dialog, "3DZScaleFact").isEnabled(), each.hasZ) << each.mode;
    }
}

TEST_F(AxisEditRangePageTest, WhatDoesNothingToAPlotCannotBeChanged)
{
    auto const& dialog = openOn(PlotType_Cartesian3D);
    EXPECT_TRUE(isEnabled(dialog, "axisEdit_RangeReverseDir_ToggleButton"));
    EXPECT_FALSE(isEnabled(dialog, "axisEdit_RangePreserveLength_ToggleButton"));
    setPlotType(PlotType_PolarLine);
    EXPECT_TRUE(isEnabled(dialog, "axisEdit_RangeReverseDir_ToggleButton"));
    EXPECT_FALSE(isEnabled(dialog, "axisEdit_RangePreserveLength_ToggleButton"));
    for (PlotType_e const plotType : {PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch}) {
        setPlotType(plotType);
        EXPECT_TRUE(isEnabled(dialog, "axisEdit_RangeReverseDir_ToggleButton")) << plotType;
        EXPECT_TRUE(isEnabled(dialog, "axisEdit_RangePreserveLength_ToggleButton")) << plotType;
    }
}
