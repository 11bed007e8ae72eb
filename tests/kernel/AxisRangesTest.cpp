#include "KernelFixture.h"

#include "toolbox/ArgList.h"
#include "toolbox/HostString.h"

#include <cmath>

namespace vantrix::kernel {

namespace {

using testing::HasSubstr;
using Range = std::pair<double, double>;

class AxisRangesTest : public KernelTest
{
protected:
    static Range range(const std::string& detail, long axis = -1)
    {
        return {std::get<double>(value((detail + "/RangeMin").c_str(), axis)),
                std::get<double>(value((detail + "/RangeMax").c_str(), axis))};
    }

    /* What is set is below what was there, or above it. */
    static void setRange(const std::string& detail, Range to, long axis = -1)
    {
        const bool isLower = to.first < range(detail, axis).second;
        EXPECT_EQ(set((detail + (isLower ? "/RangeMin" : "/RangeMax")).c_str(), isLower ? to.first : to.second, axis),
                  SetValueReturnCode_Ok);
        EXPECT_EQ(set((detail + (isLower ? "/RangeMax" : "/RangeMin")).c_str(), isLower ? to.second : to.first, axis),
                  SetValueReturnCode_Ok);
    }

    /* The text of the refusal; empty when the value was taken. */
    static std::string refusalOf(const std::string& path, const StyleData& to, long axis = -1)
    {
        const SetValueReturnCode_e code = set(path.c_str(), to, axis);
        EXPECT_THAT(code, testing::AnyOf(SetValueReturnCode_Ok, SetValueReturnCode_Refused));
        return code == SetValueReturnCode_Ok ? std::string() : style().lastError();
    }

    template<class... Arguments>
    static bool locked(bool (*function)(Arguments...), std::type_identity_t<Arguments>... arguments)
    {
        const LockScope lock;
        return function(arguments...);
    }

    using NamedValues = std::vector<std::pair<const char*, long>>;

    static bool view(const NamedValues& values)
    {
        toolbox::ArgList arguments;
        for (const auto& [name, number] : values) {
            arguments.appendArbParam(name, number);
        }
        const LockScope lock;
        return VtxUtilViewX(arguments.handle());
    }

    static Range variable(long number)
    {
        Range found;
        EXPECT_TRUE(VtxUtilVarGetMinMax(number, &found.first, &found.second));
        return found;
    }

    static std::string lastError() { return toolbox::takeHostString(VtxUtilGetLastErrorString()); }

    static void setPlotType(PlotType_e type) { set("PlotType", static_cast<long>(type)); }

    static constexpr const char* x2D = "TwoDAxis/XDetail";
};

} // namespace

TEST_F(AxisRangesTest, FitTakesTheRangeOfTheVariableAndIsOneStepOfUndo)
{
    show("fe2d");
    setRange(x2D, {5.0, 7.0});
    ASSERT_TRUE(locked(VtxUtilViewAxisFit, 'X', 1));
    EXPECT_EQ(range(x2D), variable(1));
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_EQ(range(x2D), Range(5.0, 7.0));
}

TEST_F(AxisRangesTest, NiceFitHoldsTheDataBetweenRoundValues)
{
    show("fe2d");
    setRange(x2D, {0.013, 0.871});
    ASSERT_TRUE(locked(VtxUtilViewAxisMakeCurValsNice, 'X', 1));
    EXPECT_EQ(range(x2D), Range(0.0, 1.0));
    set("TwoDAxis/XDetail/AutoGrid", 0L);
    set("TwoDAxis/XDetail/GRSpacing", 0.123);
    ASSERT_TRUE(locked(VtxUtilViewAxisNiceFit, 'X', 1));
    EXPECT_LE(range(x2D).first, variable(1).first);
    EXPECT_GE(range(x2D).second, variable(1).second);
    EXPECT_EQ(value("TwoDAxis/XDetail/GRSpacing"), StyleData(0.123)) << "a spacing of the user's own stays";
}

TEST_F(AxisRangesTest, OnlyWhatIsShownOverAnAxisCounts)
{
    show("lines");
    setPlotType(PlotType_XYLine);
    set("LineMap/Assignment/YAxis", 2L, 3);
    set("LineMap/Assignment/YAxisVar", 3L, 3);
    ASSERT_TRUE(locked(VtxUtilViewAxisFit, 'Y', 2));
    const Range velocity = range("XYLineAxis/YDetail", 2);
    EXPECT_LT(velocity.first, -1.0);
    EXPECT_EQ(range("XYLineAxis/YDetail", 3), Range(0.0, 1.0)) << "other axes stay";

    set("ActiveLineMaps", 0L, 3);
    EXPECT_FALSE(locked(VtxUtilViewAxisFit, 'Y', 2));
    EXPECT_THAT(lastError(), HasSubstr("shows no data"));
    EXPECT_EQ(range("XYLineAxis/YDetail", 2), velocity) << "a refusal changes nothing";

    ASSERT_TRUE(locked(VtxUtilViewAxisFit, 'X', 1));
    EXPECT_EQ(range("XYLineAxis/XDetail", 1), Range(0.0, 10.0));
}

TEST_F(AxisRangesTest, LogarithmicAxesLeaveOutWhatTheyCannotShow)
{
    show("lines");
    setPlotType(PlotType_XYLine);
    set("XYLineAxis/YDetail/CoordScale", static_cast<long>(CoordScale_Log), 1);
    ASSERT_TRUE(locked(VtxUtilViewAxisFit, 'Y', 1));
    EXPECT_GT(range("XYLineAxis/YDetail", 1).first, 0.0);
    EXPECT_EQ(range("XYLineAxis/YDetail", 1).second, 1.0);
    ASSERT_TRUE(locked(VtxUtilViewAxisNiceFit, 'Y', 1));
    const double decades = std::log10(range("XYLineAxis/YDetail", 1).first);
    EXPECT_DOUBLE_EQ(decades, std::round(decades));
}

TEST_F(AxisRangesTest, PolarAxesAreFittedToTheEntireCircle)
{
    show("polar");
    setPlotType(PlotType_PolarLine);
    setRange("PolarAxis/ThetaDetail", {-90.0, 45.0});
    setRange("PolarAxis/RDetail", {3.0, 8.0});
    set("PolarAxis/RDetail/ValueAtOrigin", 1.0);
    ASSERT_TRUE(locked(VtxUtilViewAxisFitToEntireCircle, 'T', 1));
    ASSERT_TRUE(locked(VtxUtilViewAxisFitToEntireCircle, 'R', 1));
    EXPECT_EQ(range("PolarAxis/ThetaDetail"), Range(-90.0, 270.0));
    EXPECT_EQ(range("PolarAxis/RDetail"), Range(1.0, 8.0));
}

TEST_F(AxisRangesTest, ARangeThatIsNotInOrderIsRefusedWithTheAxisAndBothValues)
{
    show("polar");
    setPlotType(PlotType_XYLine);
    struct
    {
        const char* path;
        long axis;
        double value;
        const char* text;
    } const cases[] = {
        {"XYLineAxis/XDetail/RangeMin", 2, 1.0, "The minimum of axis X2 has to be below its maximum, which is 1; 1 is"},
        {"XYLineAxis/YDetail/RangeMax", 5, -4, "The maximum of axis Y5 has to be above its minimum, which is 0; -4 is"},
        {"TwoDAxis/YDetail/RangeMin", -1, 1e9, "minimum of axis Y has"},
        {"ThreeDAxis/ZDetail/RangeMax", -1, -1e9, "maximum of axis Z has"},
        {"SketchAxis/XDetail/RangeMin", -1, 1e9, "minimum of axis X has"},
        {"PolarAxis/ThetaDetail/RangeMin", -1, 1e9, "minimum of axis Theta has"},
        {"PolarAxis/RDetail/RangeMax", -1, -1e9, "maximum of axis R has"},
    };
    for (const auto& each : cases) {
        const StyleData before = value(each.path, each.axis);
        EXPECT_THAT(refusalOf(each.path, each.value, each.axis), HasSubstr(each.text));
        EXPECT_EQ(value(each.path, each.axis), before);
    }
    setRange("XYLineAxis/XDetail", {20.0, 30.0}, 2); // both ends, when the right one is first

    const LockScope lock;
    style().set(style().entry("XYLineAxis/YDetail/RangeMax"), 3, -1, 7.0);
    EXPECT_EQ(style().setMany(style().entry("XYLineAxis/YDetail/RangeMin"), {3, 4}, -1, 5.0),
              SetValueReturnCode_Refused);
    EXPECT_EQ(range("XYLineAxis/YDetail", 3), Range(0.0, 7.0)) << "none of many is written when one is refused";
}

TEST_F(AxisRangesTest, ALogarithmicAxisHasItsRangeAboveZeroAtAnyTime)
{
    show("lines");
    setPlotType(PlotType_XYLine);
    const std::string y = "XYLineAxis/YDetail";
    const long log = CoordScale_Log;
    const Range before = range(y, 1);
    ASSERT_LT(before.first, 0.0);
    const double maximum = before.second;
    EXPECT_EQ(refusalOf(y + "/CoordScale", log, 1), "");
    EXPECT_GT(range(y, 1).first, 0.0);
    EXPECT_LE(range(y, 1).first, 0.1) << "there are data above 0";
    EXPECT_EQ(range(y, 1).second, maximum);
    const double up = VtxUtilAxisGetNextRangeValue('Y', 1, range(y, 1).first, true, true);
    EXPECT_GT(up, range(y, 1).first) << "the minimum can be stepped";
    EXPECT_THAT(refusalOf(y + "/RangeMin", 0.0, 1),
                HasSubstr("The minimum of axis Y1 has to be above 0, because the axis is logarithmic; 0 is not."));
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_EQ(range(y, 1), before) << "scale and range were one step";

    EXPECT_EQ(refusalOf(y + "/RangeMin", -9.0, 4), "");
    EXPECT_EQ(refusalOf(y + "/RangeMax", -2.0, 4), "");
    EXPECT_EQ(refusalOf(y + "/CoordScale", log, 4), "") << "nothing is shown over the axis";
    EXPECT_GT(range(y, 4).first, 0.0);
    EXPECT_GT(range(y, 4).second, range(y, 4).first);

    EXPECT_EQ(refusalOf("PolarAxis/RDetail/CoordScale", log), "") << "another plot is shown";
    EXPECT_GT(range("PolarAxis/RDetail").first, 0.0);
    set("PolarAxis/RDetail/ValueAtOrigin", 0.0);
    const Range r = range("PolarAxis/RDetail");
    setPlotType(PlotType_PolarLine);
    EXPECT_FALSE(locked(VtxUtilViewAxisFitToEntireCircle, 'R', 1)) << "0 is in the centre";
    EXPECT_THAT(lastError(), HasSubstr("axis R has to be above 0"));
    EXPECT_EQ(range("PolarAxis/RDetail"), r);

    show("lines");
    EXPECT_EQ(range("PolarAxis/RDetail").first, -1.0) << "other data, seen whole";
    EXPECT_EQ(value("PolarAxis/RDetail/CoordScale"), StyleData(long{CoordScale_Linear}));
}

TEST_F(AxisRangesTest, WhatThePlotDoesNotHaveIsRefusedWithWhatItHas)
{
    show("fe2d");
    const Range before = range(x2D);
    for (const auto& [kind, number] : {std::pair{'Z', 1}, {'T', 1}, {'X', 2}, {'X', 0}, {'\0', 1}}) {
        EXPECT_FALSE(locked(VtxUtilViewAxisFit, kind, number));
        EXPECT_THAT(lastError(), HasSubstr("it has X and Y.")) << kind << number;
    }
    EXPECT_FALSE(locked(VtxUtilViewAxisFitToEntireCircle, 'X', 1));
    EXPECT_FALSE(locked(VtxUtilReset3DScaleFactors));
    setPlotType(PlotType_Sketch);
    EXPECT_FALSE(locked(VtxUtilViewAxisFit, 'X', 1));
    setPlotType(PlotType_Cartesian2D);
    EXPECT_EQ(range(x2D), before);
}

TEST_F(AxisRangesTest, FitTakesWhatBlankingLeavesWhereThatIsAskedFor)
{
    show("fe2d");
    const Range whole = variable(1);
    const double cut = 0.5 * (whole.first + whole.second);
    const auto fitted = [&](long considersBlanking) {
        setRange(x2D, {5.0, 7.0});
        EXPECT_TRUE(
            view({{"ViewOP", ViewOp_AxisFit}, {"Axis", 'X'}, {"AxisNum", 1}, {"ConsiderBlanking", considersBlanking}}));
        return range(x2D);
    };
    set("Blanking/Value/Include", 1L);
    EXPECT_FALSE(VtxUtilBlankingIsActive()) << "no constraint is in use";
    set("Blanking/Value/Constraint/Include", 1L, 3);
    set("Blanking/Value/Constraint/VarA", 1L, 3);
    set("Blanking/Value/Constraint/ValueCutoff", cut, 3);
    EXPECT_TRUE(VtxUtilBlankingIsActive());
    EXPECT_EQ(fitted(0), whole);
    const Range left = fitted(1);
    EXPECT_GT(left.first, cut);
    EXPECT_LT(left.first, cut + 0.1 * (whole.second - whole.first));
    EXPECT_EQ(left.second, whole.second);
    set("Blanking/Value/Constraint/RelOp", long{RelOp_GreaterThanOrEqual}, 3);
    set("Blanking/Value/Constraint/ValueCutoff", whole.first, 3);
    setRange(x2D, {5.0, 7.0});
    EXPECT_FALSE(view({{"ViewOP", ViewOp_AxisFit}, {"Axis", 'X'}, {"AxisNum", 1}, {"ConsiderBlanking", 1}}));
    EXPECT_EQ(range(x2D), Range(5.0, 7.0)) << "everything is blanked: there is nothing to fit to";
    setPlotType(PlotType_Sketch);
    EXPECT_FALSE(VtxUtilBlankingIsActive());
}

TEST_F(AxisRangesTest, TheViewIsFittedByNamedArguments)
{
    show("fe2d");
    setRange(x2D, {5.0, 7.0});
    EXPECT_TRUE(view({{"ViewOP", ViewOp_AxisFit}, {"Axis", 'X'}, {"AxisNum", 1}, {"ConsiderBlanking", 1}}));
    EXPECT_EQ(range(x2D), variable(1));
    setRange("TwoDAxis/YDetail", {5.0, 7.0});
    EXPECT_TRUE(view({{"ViewOP", ViewOp_DataFit}}));
    EXPECT_EQ(range("TwoDAxis/YDetail"), variable(2));

    for (const auto& [arguments, text] : std::vector<std::pair<NamedValues, const char*>>{
             {{{"Axis", 'X'}}, "\"ViewOP\" is missing"},
             {{{"ViewOP", ViewOp_AxisFit}}, "\"Axis\" is missing"},
             {{{"ViewOP", 17}}, "it has to be a ViewOp_e"},
             {{{"ViewOP", ViewOp_Fit}, {"Zoom", 2}}, "\"Zoom\" is unknown"}}) {
        EXPECT_FALSE(view(arguments));
        EXPECT_THAT(lastError(), HasSubstr(text));
    }
}

TEST_F(AxisRangesTest, FittingThePlotShowsTheWholeOfA3DPlot)
{
    show("flow3d");
    for (const ViewOp_e operation : {ViewOp_Fit, ViewOp_DataFit}) {
        set("ThreeDView/ViewerPosition/Y", 12.5);
        set("ThreeDView/PsiAngle", 20.0);
        EXPECT_TRUE(view({{"ViewOP", operation}}));
        EXPECT_EQ(value("ThreeDView/ViewerPosition/Y"), StyleData(0.0));
        EXPECT_EQ(value("ThreeDView/PsiAngle"), StyleData(20.0)) << "the direction stays";
    }
    EXPECT_EQ(range("ThreeDAxis/XDetail"), variable(1));
}

TEST_F(AxisRangesTest, StepsOfARangeFieldFollowTheRange)
{
    show("fe2d");
    setRange(x2D, {0.0, 2.0});
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 1, 0.2, true, false), 0.3);
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 1, 0.0, false, false), -0.1);
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 1, 0.23, true, true), 0.3);
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 1, 0.23, false, true), 0.2);
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('Z', 1, 0.23, true, true), 0.23) << "no such axis";
    setRange(x2D, {1.0, 1.9});
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 1, 1.05, false, true), 1.05)
        << "one end does not step to the other";
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 1, 1.0, false, true), 0.95);

    setPlotType(PlotType_XYLine);
    set("XYLineAxis/XDetail/CoordScale", static_cast<long>(CoordScale_Log), 2);
    setRange("XYLineAxis/XDetail", {1.0, 1e20}, 2);
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 2, 50.0, true, false), 500.0);
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 2, 50.0, false, true), 20.0);
    setRange("XYLineAxis/XDetail", {1.0, 2.0}, 2);
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 2, 2.0, false, true), 2.0);
    EXPECT_DOUBLE_EQ(VtxUtilAxisGetNextRangeValue('X', 2, 2.0, true, true), 5.0);
}

TEST_F(AxisRangesTest, DependencyIsAllowedWhereXAndYAreTheOnlyAxesAndLinear)
{
    show("lines");
    const long frame = VtxUtilFrameGetUniqueID();
    setPlotType(PlotType_XYLine);
    EXPECT_TRUE(VtxUtilQueryIsXYDependentAllowedForFrame(frame));
    set("LineMap/Assignment/XAxis", 2L, 4);
    EXPECT_FALSE(VtxUtilQueryIsXYDependentAllowedForFrame(frame));
    set("ActiveLineMaps", 0L, 4);
    EXPECT_TRUE(VtxUtilQueryIsXYDependentAllowedForFrame(frame)) << "what is not shown uses no axis";
    set("XYLineAxis/YDetail/CoordScale", static_cast<long>(CoordScale_Log), 1);
    EXPECT_FALSE(VtxUtilQueryIsXYDependentAllowedForFrame(frame));
    setPlotType(PlotType_Cartesian2D);
    EXPECT_TRUE(VtxUtilQueryIsXYDependentAllowedForFrame(frame));
    setPlotType(PlotType_PolarLine);
    EXPECT_FALSE(VtxUtilQueryIsXYDependentAllowedForFrame(frame));
    EXPECT_FALSE(VtxUtilQueryIsXYDependentAllowedForFrame(frame + 1000));
}

TEST_F(AxisRangesTest, ScaleFactorsSuitTheProportionsOfTheData)
{
    show("flow3d");
    const auto factor = [](const char* axis) {
        return std::get<double>(value((std::string("GlobalThreeD/AxisScale/") + axis).c_str()));
    };
    set("GlobalThreeD/AxisScale/Y", 3.0);
    set("ThreeDAxis/AxisMode", static_cast<long>(AxisMode_Independent));
    ASSERT_TRUE(locked(VtxUtilReset3DScaleFactors));
    EXPECT_EQ(factor("Y"), 1.0);
    EXPECT_EQ(value("ThreeDAxis/AxisMode"), StyleData(static_cast<long>(AxisMode_XYZDependent)));

    set("ThreeDAxis/ZDetail/VarNum", 0L); // its own range then counts
    setRange("ThreeDAxis/ZDetail", {0.0, 1e-4});
    ASSERT_TRUE(locked(VtxUtilReset3DScaleFactors));
    EXPECT_GT(factor("Z"), 1000.0);
    EXPECT_EQ(value("ThreeDAxis/AxisMode"), StyleData(static_cast<long>(AxisMode_Independent)));
}

TEST_F(AxisRangesTest, VariablesOfALinePlotAreThoseOfTheFirstLineMapShown)
{
    long x = -1;
    long y = -1;
    long z = -1;
    EXPECT_FALSE(VtxUtilAxisGetVarAssignments(&x, &y, &z)) << "no data";
    show("lines");
    setPlotType(PlotType_XYLine);
    set("LineMap/Assignment/YAxisVar", 4L, 2);
    set("ActiveLineMaps", 0L, 1);
    ASSERT_TRUE(VtxUtilAxisGetVarAssignments(&x, &y, nullptr));
    EXPECT_EQ(std::pair(x, y), std::pair(1L, 4L));
    show("flow3d");
    ASSERT_TRUE(VtxUtilAxisGetVarAssignments(&x, &y, &z));
    EXPECT_THAT(std::vector({x, y, z}), testing::ElementsAre(1, 2, 3));
}

} // namespace vantrix::kernel
