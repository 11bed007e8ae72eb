#include "KernelFixture.h"

#include "kernel/FieldValues.h"
#include "kernel/NiceNumbers.h"

#include <limits>
#include <numbers>

namespace vantrix::kernel {

namespace {

using PlotDefaultsTest = KernelTest;

DataSet withVariables(const std::vector<std::string>& names)
{
    DataSet data(1);
    for (const std::string& name : names) {
        data.variables.push_back({name, true});
    }
    return data;
}

} // namespace

TEST_F(PlotDefaultsTest, AxisVariablesGoByNameFirstAndThenByOrder)
{
    struct Case
    {
        std::vector<std::string> names;
        AxisVariables expected;
    };
    for (const Case& one :
         {Case{{"X", "Y", "Z", "P"}, {1, 2, 3}}, Case{{"P", "z", "y", "x"}, {4, 3, 2}},
          Case{{"P", "X(M)", "Y(M)"}, {2, 3, 0}}, Case{{"T", "CoordinateX", "CoordinateY", "CoordinateZ"}, {2, 3, 4}},
          Case{{"Points_X", "Points_Y"}, {1, 2, 0}}, Case{{"time", "signal"}, {1, 2, 0}},
          Case{{"a", "b", "c", "d"}, {1, 2, 3}}, Case{{"a", "x", "c"}, {2, 1, 3}}, Case{{"only"}, {1, 0, 0}},
          Case{{}, {0, 0, 0}}}) {
        const AxisVariables found = guessAxisVariables(withVariables(one.names));
        SCOPED_TRACE(testing::PrintToString(one.names));
        EXPECT_EQ(found.x, one.expected.x);
        EXPECT_EQ(found.y, one.expected.y);
        EXPECT_EQ(found.z, one.expected.z);
    }
}

TEST_F(PlotDefaultsTest, NewDataAreSeenWholeWhateverTheViewWas)
{
    show("flow3d");
    set("ThreeDView/ThetaAngle", 12.0);
    set("ThreeDView/ViewWidth", 80.0);
    set("ThreeDView/ViewerPosition/X", 70.0);
    set("ThreeDView/ViewerPosition/Z", -30.0);
    show("polyhedra");
    for (const char* coordinate : {"X", "Y", "Z"}) {
        EXPECT_EQ(value((std::string("ThreeDView/ViewerPosition/") + coordinate).c_str()), StyleData(0.0));
    }
    EXPECT_EQ(value("ThreeDView/ThetaAngle"), StyleData(240.0));
    VtxUtilUndo();
    EXPECT_EQ(value("ThreeDView/ViewerPosition/X"), StyleData(70.0));
}

TEST_F(PlotDefaultsTest, AxesAreInProportionUnlessOneWouldBeTooShort)
{
    for (const auto& [sample, isInProportion] : {std::pair("polar", false), {"fe2d", true}, {"flow3d", true}}) {
        show(sample); // over what was shown before
        EXPECT_EQ(value("TwoDAxis/AxisMode"),
                  StyleData(long{isInProportion ? AxisMode_XYDependent : AxisMode_Independent}))
            << sample;
        EXPECT_EQ(value("GlobalThreeD/AxisScale/X"), StyleData(1.0)) << "of the longest";
        EXPECT_EQ(value("GlobalThreeD/AxisScale/Y") == StyleData(1.0), isInProportion) << sample;
    }
}

TEST_F(PlotDefaultsTest, ThePlotTypeSuitsTheData)
{
    const std::vector<std::pair<std::string, PlotType_e>> cases{{"flow3d", PlotType_Cartesian3D},
                                                                {"fe2d", PlotType_Cartesian2D},
                                                                {"lines", PlotType_XYLine},
                                                                {"polar", PlotType_PolarLine},
                                                                {"polyhedra", PlotType_Cartesian3D}};
    for (const auto& [sample, expected] : cases) {
        kernel().reset();
        show(sample);
        EXPECT_EQ(VtxUtilFrameGetPlotType(), expected) << sample;
    }
}

TEST_F(PlotDefaultsTest, AFrameShowsAllOfItsDataAndOneUndoTakesBackAll)
{
    show("flow3d");
    const Frame& frame = *document().activeFrame();
    const DataSet& data = *frame.dataSet();
    const AxisVariables axes = axisVariables(style(), frame);
    EXPECT_EQ(data.variables[static_cast<std::size_t>(axes.x - 1)].name, "X");
    EXPECT_EQ(data.variables[static_cast<std::size_t>(axes.z - 1)].name, "Z");
    const long contour = std::get<long>(value("GlobalContour/Var", 1));
    EXPECT_EQ(data.variables[static_cast<std::size_t>(contour - 1)].name, "U") << "the first that is no axis";
    EXPECT_LT(std::get<double>(value("ThreeDAxis/XDetail/RangeMin")),
              std::get<double>(value("ThreeDAxis/XDetail/RangeMax")));
    EXPECT_GT(std::get<long>(value("GlobalStream/VVar")), 0);

    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(frame.dataSet(), nullptr);
    EXPECT_EQ(VtxUtilFrameGetPlotType(), PlotType_Sketch);
    EXPECT_EQ(axisVariables(style(), frame).x, 0);
    EXPECT_FALSE(VtxUtilUndo());
}

TEST_F(PlotDefaultsTest, EachZoneOfALineDataSetHasALineMap)
{
    show("lines");
    EXPECT_EQ(value("FrameSetup/NumLineMaps"), StyleData(4L));
    EXPECT_EQ(value("LineMap/Assignment/Zone", 4), StyleData(4L));
    EXPECT_NE(value("LineMap/Lines/Color", 1), value("LineMap/Lines/Color", 2));
    EXPECT_EQ(value("GlobalLinePlot/Legend/Show"), StyleData(1L)) << "there is something to tell apart";
    EXPECT_NE(value("XYLineAxis/YDetail/AxisLine/AxisAlignment", 1),
              value("XYLineAxis/YDetail/AxisLine/AxisAlignment", 2));
}

TEST_F(PlotDefaultsTest, APolarPlotGoesRoundOnceInTheUnitOfItsAngles)
{
    struct Case
    {
        double first;
        double last;
        ThetaMode_e mode;
        double minimum;
        double period;
    };
    constexpr double pi = std::numbers::pi;
    for (const Case& one : {Case{0, 360, ThetaMode_Degrees, 0, 360},
                            {-180, 180, ThetaMode_Degrees, -180, 360},
                            {0, 10, ThetaMode_Degrees, 0, 360},
                            {0, 2 * pi, ThetaMode_Radians, 0, 2 * pi},
                            {-pi, pi, ThetaMode_Radians, -pi, 2 * pi},
                            {0, 1, ThetaMode_Degrees, 0, 360},
                            {5, 5, ThetaMode_Radians, 0, 2 * pi},
                            {-400, 20, ThetaMode_Degrees, 0, 360}}) {
        kernel().reset();
        const LockScope lock;
        DataSet data = document().newDataSet();
        data.variables = {{"angle", true}, {"radius", true}};
        Zone zone = Zone::ordered("line", 2, 1, 1);
        for (const auto& [from, to] : {std::pair(one.first, one.last), {2.0, 9.0}}) {
            auto values = makeValues(FieldDataType_Double, 2);
            values->SetComponent(0, 0, from);
            values->SetComponent(1, 0, to);
            zone.fields.push_back({values, ValueLocation_Nodal, {}});
        }
        data.addZone(std::move(zone));
        document().attachDataSet(*document().activeFrame(), std::make_shared<const DataSet>(std::move(data)));
        PlotDefaults::apply(*document().activeFrame());
        SCOPED_TRACE(testing::Message() << one.first << " to " << one.last);
        EXPECT_EQ(value("PolarAxis/ThetaMode"), StyleData(long{one.mode}));
        EXPECT_EQ(value("PolarAxis/ThetaPeriod"), StyleData(one.period));
        EXPECT_EQ(value("PolarAxis/ThetaDetail/RangeMin"), StyleData(one.minimum));
        EXPECT_EQ(value("PolarAxis/RDetail/RangeMin"), StyleData(0.0)) << "the centre is part of the plot";
    }
}

TEST(NiceNumbers, HoldTheRangeBetweenMultiplesOfTheSpacing)
{
    struct Case
    {
        double minimum;
        double maximum;
        NiceRange expected;
    };
    for (const Case& one :
         {Case{0, 1, {0, 1, 0.2}}, Case{0.13, 0.97, {0, 1, 0.2}}, Case{-3, 96, {-20, 100, 20}},
          Case{1000, 1001, {1000, 1001, 0.2}}, Case{0, 0, {-1, 1, 0.5}}, Case{5, 5, {4.4, 5.6, 0.2}}}) {
        const NiceRange found = niceRange(one.minimum, one.maximum);
        SCOPED_TRACE(one.minimum);
        EXPECT_DOUBLE_EQ(found.minimum, one.expected.minimum);
        EXPECT_DOUBLE_EQ(found.maximum, one.expected.maximum);
        EXPECT_DOUBLE_EQ(found.spacing, one.expected.spacing);
    }
}

} // namespace vantrix::kernel

TEST_F(PlotDefaultsTest, ZonesWithNothingToBeColouredByHaveColoursOfTheirOwn)
{
    const LockScope lock;
    const auto create = [] {
        return VtxUtilCreateCircularZone(5, 8, 1, 0.0, 0.0, 2.0, 0.0, 0.0, FieldDataType_Double);
    };
    ASSERT_TRUE(create()) << kernel().lastError();
    ASSERT_TRUE(create()) << kernel().lastError();
    const StyleData white(7L);
    EXPECT_NE(value("FieldMap/Shade/Color", 1), white);
    EXPECT_NE(value("FieldMap/Shade/Color", 2), white);
    EXPECT_NE(value("FieldMap/Shade/Color", 1), value("FieldMap/Shade/Color", 2));
    EXPECT_EQ(value("FieldLayers/ShowContour"), StyleData(0L));
}
