#include "KernelFixture.h"

#include "kernel/Layout.h"
#include "kernel/OrderedZones.h"
#include "kernel/streamtrace/StreamtracePaths.h"
#include "toolbox/ArgList.h"

#include <vtkDoubleArray.h>

#include <cmath>
#include <cstdio>
#include <numbers>

namespace vantrix::kernel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using toolbox::ArgList;

class StreamtracesTest : public KernelTest
{
protected:
    using Vector = std::array<double, 3>;
    using Flow = std::function<Vector(const Vector&)>;
    using Grid = std::array<long, 3>;

    /* Shows an ordered zone whose points and vectors are functions of its indices, as parts of 1. */
    static void showFlow(PlotType_e plotType, const Grid& size, const Flow& place, const Flow& flow)
    {
        const LockScope lock;
        DataSet data = document().newDataSet();
        for (const char* name : {"X", "Y", "Z", "U", "V", "W"}) {
            data.variables.push_back({name});
        }
        Zone zone = Zone::ordered("Flow", size[0], size[1], size[2]);
        std::array<vtkSmartPointer<vtkDoubleArray>, 6> arrays;
        for (auto& array : arrays) {
            array = vtkSmartPointer<vtkDoubleArray>::New();
        }
        for (long k = 0; k < size[2]; ++k) {
            for (long j = 0; j < size[1]; ++j) {
                for (long i = 0; i < size[0]; ++i) {
                    const auto part = [](long index, long count) {
                        return count > 1 ? double(index) / double(count - 1) : 0.0;
                    };
                    const Vector at = place({part(i, size[0]), part(j, size[1]), part(k, size[2])});
                    const Vector moves = flow(at);
                    for (std::size_t axis = 0; axis < 3; ++axis) {
                        arrays[axis]->InsertNextValue(at[axis]);
                        arrays[axis + 3]->InsertNextValue(moves[axis]);
                    }
                }
            }
        }
        for (const auto& array : arrays) {
            zone.fields.push_back({array});
        }
        data.addZone(std::move(zone));
        document().attachDataSet(*document().activeFrame(), std::make_shared<const DataSet>(std::move(data)));
        PlotDefaults::apply(*document().activeFrame());
        VtxUtilFrameSetPlotType(plotType);
        set("GlobalStream/UVar", 4L);
        set("GlobalStream/VVar", 5L);
        set("GlobalStream/WVar", 6L);
        set("StreamtraceLayers/Show", 1L);
    }

    /* A square about the origin, 4 wide. */
    static Vector square(const Vector& part) { return {4.0 * part[0] - 2.0, 4.0 * part[1] - 2.0, 0.0}; }
    static Vector cube(const Vector& part) { return {4.0 * part[0] - 2.0, 4.0 * part[1] - 2.0, 4.0 * part[2] - 2.0}; }
    static Vector turning(const Vector& at) { return {-at[1], at[0], 0.0}; }
    static Vector uniform(const Vector& /*at*/) { return {2.0, 0.0, 0.0}; }

    static bool add(const std::function<void(ArgList&)>& fill)
    {
        ArgList arguments;
        fill(arguments);
        const LockScope lock;
        return VtxUtilStreamtraceAddX(arguments.handle());
    }

    static bool addAt(const Vector& at, Streamtrace_e type = Streamtrace_TwoDLine,
                      StreamDir_e direction = StreamDir_Both)
    {
        return add([&](ArgList& arguments) {
            arguments.appendArbParam("StreamType", type);
            arguments.appendArbParam("StreamDirection", direction);
            arguments.appendDouble("X1", at[0]);
            arguments.appendDouble("Y1", at[1]);
            arguments.appendDouble("Z1", at[2]);
        });
    }

    static TracedStreamtraces traced() { return *kernel().streamtracePaths().of(*document().activeFrame()); }
    static const StreamtracePath& path(std::size_t index)
    {
        static std::shared_ptr<const StreamtracePath> kept;
        kept = traced().at(index).path;
        return *kept;
    }

    static std::vector<double> xPositions()
    {
        std::vector<double> found;
        for (long i = 1; i <= VtxUtilStreamtraceGetCount(); ++i) {
            double x = 0.0;
            EXPECT_TRUE(VtxUtilStreamtraceGetPosition(i, &x, nullptr, nullptr));
            found.push_back(x);
        }
        return found;
    }
};

double radius(const Position& at)
{
    return std::hypot(at[0], at[1]);
}

} // namespace

TEST_F(StreamtracesTest, FollowCirclesInThePlaneAndCloseThere)
{
    showFlow(PlotType_Cartesian2D, {41, 41, 1}, square, turning);
    ASSERT_TRUE(addAt({1.0, 0.0, 0.0})) << kernel().lastError();
    const StreamtracePath& circle = path(0);
    ASSERT_GT(circle.points.size(), 60U);
    ASSERT_LT(circle.points.size(), 400U) << "goes round more than once";
    for (const Position& at : circle.points) {
        EXPECT_NEAR(radius(at), 1.0, 1e-4);
        EXPECT_EQ(at[2], 0.0);
    }
    EXPECT_EQ(circle.times.front(), 0.0);
    EXPECT_NEAR(circle.times.back(), 2.0 * std::numbers::pi, 0.1);
}

TEST_F(StreamtracesTest, RunThroughAUniformFlowInTheDirectionAskedFor)
{
    showFlow(PlotType_Cartesian2D, {21, 21, 1}, square, uniform);
    struct Case
    {
        StreamDir_e direction;
        double first;
        double last;
    };
    for (const Case& each :
         {Case{StreamDir_Forward, 0.5, 2.0}, Case{StreamDir_Reverse, -2.0, 0.5}, Case{StreamDir_Both, -2.0, 2.0}}) {
        {
            const LockScope lock;
            VtxUtilStreamtraceDeleteAll();
        }
        ASSERT_TRUE(addAt({0.5, 0.25, 0.0}, Streamtrace_TwoDLine, each.direction)) << kernel().lastError();
        const StreamtracePath& line = path(0);
        ASSERT_GT(line.points.size(), 2U);
        EXPECT_NEAR(line.points.front()[0], each.first, 0.06) << each.direction;
        EXPECT_NEAR(line.points.back()[0], each.last, 0.06) << each.direction;
        for (std::size_t i = 0; i < line.points.size(); ++i) {
            EXPECT_NEAR(line.points[i][1], 0.25, 1e-9);
            EXPECT_NEAR(line.times[i], (line.points[i][0] - 0.5) / 2.0, 1e-6) << "the flow moves 2 in a unit of time";
        }
    }
}

TEST_F(StreamtracesTest, StayOnTheSurfaceOrInsideOfTheVolumeAsTheirFormatSays)
{
    // The flow rises; on a cylinder's wall it also points outwards, which a line on it has to ignore.
    const auto wall = [](const Vector& part) {
        const double turn = std::numbers::pi * part[0];
        return Vector{std::cos(turn), std::sin(turn), 3.0 * part[1]};
    };
    showFlow(PlotType_Cartesian3D, {49, 25, 1}, wall, [](const Vector& at) {
        return Vector{at[0] - 0.5 * at[1], at[1] + 0.5 * at[0], 1.0};
    });
    ASSERT_TRUE(addAt({0.0, 1.0, 1.0}, Streamtrace_SurfaceLine)) << kernel().lastError();
    const StreamtracePath& onWall = path(0);
    ASSERT_GT(onWall.points.size(), 10U);
    for (const Position& at : onWall.points) {
        EXPECT_NEAR(radius(at), 1.0, 5e-3);
    }
    EXPECT_GT(onWall.points.back()[2] - onWall.points.front()[2], 1.0);

    kernel().reset();
    showFlow(PlotType_Cartesian3D, {49, 25, 1}, wall, uniform);
    ASSERT_TRUE(addAt({0.1, 0.99, 1.0}, Streamtrace_SurfaceLine)) << kernel().lastError();
    EXPECT_NEAR(path(0).points.front()[0], -1.0, 0.01) << "half around the cylinder";
    EXPECT_NEAR(path(0).points.back()[0], 1.0, 0.01);

    kernel().reset();
    showFlow(PlotType_Cartesian3D, {21, 21, 21}, cube, [](const Vector& at) { return Vector{-at[1], at[0], 0.25}; });
    ASSERT_TRUE(addAt({1.0, 0.0, 0.0}, Streamtrace_VolumeLine)) << kernel().lastError();
    const StreamtracePath& helix = path(0);
    EXPECT_NEAR(helix.points.front()[2], -2.0, 0.1);
    EXPECT_NEAR(helix.points.back()[2], 2.0, 0.1);
    for (std::size_t i = 0; i < helix.points.size(); ++i) {
        EXPECT_NEAR(radius(helix.points[i]), 1.0, 1e-3);
        EXPECT_NEAR(helix.points[i][2], 0.25 * helix.times[i], 1e-3);
    }
}

TEST_F(StreamtracesTest, ARibbonIsTurnedAsTheFlowTurns)
{
    // A solid body turns about X once in a time of 2 pi while it moves along.
    showFlow(PlotType_Cartesian3D, {21, 21, 21}, cube, [](const Vector& at) { return Vector{1.0, -at[2], at[1]}; });
    ASSERT_TRUE(addAt({0.0, 0.0, 0.0}, Streamtrace_VolumeRibbon)) << kernel().lastError();
    const StreamtracePath& ribbon = path(0);
    ASSERT_EQ(ribbon.twists.size(), ribbon.points.size());
    ASSERT_GT(ribbon.points.size(), 10U);
    for (std::size_t i = 0; i < ribbon.points.size(); ++i) {
        EXPECT_NEAR(ribbon.twists[i], ribbon.points[i][0], 0.02);
    }
}

TEST_F(StreamtracesTest, ARakeIsSpreadEvenlyAndLeavesOutWhatIsOutsideOfTheData)
{
    showFlow(PlotType_Cartesian2D, {21, 21, 1}, square, uniform);
    const auto rake = [](double fromX, double toX) {
        return add([&](ArgList& arguments) {
            arguments.appendDouble("X1", fromX);
            arguments.appendDouble("Y1", 0.0);
            arguments.appendDouble("X2", toX);
            arguments.appendDouble("Y2", 0.0);
            arguments.appendArbParam("NumPts", 5);
        });
    };
    ASSERT_TRUE(rake(-1.0, 1.0)) << kernel().lastError();
    EXPECT_THAT(xPositions(), ElementsAre(-1.0, -0.5, 0.0, 0.5, 1.0));
    ASSERT_TRUE(rake(1.0, 5.0)) << kernel().lastError();
    EXPECT_THAT(xPositions(), ElementsAre(-1.0, -0.5, 0.0, 0.5, 1.0, 1.0, 2.0));
    EXPECT_FALSE(rake(3.0, 5.0));
    EXPECT_THAT(kernel().lastError(), HasSubstr("outside of the data field"));
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 7);
    ASSERT_TRUE(add([](ArgList& arguments) {
        arguments.appendArbParam("Zone", 1);
        arguments.appendArbParam("I1", 6);
        arguments.appendArbParam("J1", 1);
        arguments.appendArbParam("I2", 6);
        arguments.appendArbParam("J2", 21);
        arguments.appendArbParam("NumPts", 2);
    })) << kernel().lastError();
    EXPECT_THAT(xPositions(), ElementsAre(-1.0, -0.5, 0.0, 0.5, 1.0, 1.0, 2.0, -1.0, -1.0));
}

TEST_F(StreamtracesTest, AreSpreadOverSurfacesTheSameWayEachTime)
{
    showFlow(PlotType_Cartesian3D, {11, 11, 11}, cube, uniform);
    const auto onSurfaces = [](long region, Streamtrace_e type = Streamtrace_SurfaceLine) {
        return add([&](ArgList& arguments) {
            arguments.appendArbParam("StreamType", type);
            arguments.appendArbParam("DistributionRegion", region);
            arguments.appendArbParam("NumPts", 60);
        });
    };
    ASSERT_TRUE(onSurfaces(DistributionRegion_SurfacesOfActiveZones)) << kernel().lastError();
    ASSERT_EQ(VtxUtilStreamtraceGetCount(), 60);
    std::array<int, 6> onFace{};
    for (long i = 1; i <= 60; ++i) {
        std::array<double, 3> at{};
        VtxUtilStreamtraceGetPosition(i, &at[0], &at[1], &at[2]);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            onFace[2 * axis] += at[axis] == -2.0 ? 1 : 0;
            onFace[2 * axis + 1] += at[axis] == 2.0 ? 1 : 0;
        }
    }
    EXPECT_THAT(onFace, testing::Each(testing::AllOf(testing::Ge(9), testing::Le(11))))
        << "all faces have as many cells";

    EXPECT_FALSE(onSurfaces(DistributionRegion_SurfacesOfSelectedObjects));
    EXPECT_THAT(kernel().lastError(), HasSubstr("No zone is picked"));
    {
        const LockScope lock;
        VtxUtilPickZone(1);
    }
    const std::vector<double> before = xPositions();
    ASSERT_TRUE(onSurfaces(DistributionRegion_SurfacesOfSelectedObjects)) << kernel().lastError();
    std::vector<double> twice = before;
    twice.insert(twice.end(), before.begin(), before.end());
    EXPECT_EQ(xPositions(), twice);

    showFlow(PlotType_Cartesian3D, {5, 5, 1}, square, uniform);
    EXPECT_FALSE(onSurfaces(DistributionRegion_SurfacesOfActiveZones, Streamtrace_VolumeLine));
    EXPECT_THAT(kernel().lastError(), HasSubstr("no volumes"));
}

TEST_F(StreamtracesTest, WhatCannotBePlacedIsRefusedWithItsCauseAndChangesNothing)
{
    EXPECT_FALSE(VtxUtilQueryCanPlotStreamtraces());
    EXPECT_FALSE(addAt({0.0, 0.0, 0.0}));
    EXPECT_THAT(kernel().lastError(), HasSubstr("2D and 3D Cartesian"));
    showFlow(PlotType_Cartesian3D, {5, 5, 5}, cube, uniform);
    EXPECT_TRUE(VtxUtilQueryCanPlotStreamtraces());
    EXPECT_FALSE(VtxUtilQueryZoneCanPlotVolumeStreamtraces(1)) << "its surfaces are shown";
    EXPECT_FALSE(VtxUtilQueryZoneCanPlotVolumeStreamtraces(2));
    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_None}, 1);
    EXPECT_TRUE(VtxUtilQueryZoneCanPlotVolumeStreamtraces(1));
    notices.clear();

    using Fill = std::function<void(ArgList&)>;
    const auto at = [](double x, long type) {
        return [=](ArgList& arguments) {
            arguments.appendDouble("X1", x);
            arguments.appendDouble("Y1", 0.0);
            arguments.appendArbParam("StreamType", type);
        };
    };
    const std::pair<Fill, const char*> bad[] = {
        {at(7.5, Streamtrace_VolumeLine), "(7.5, 0, 0) is outside of the data field"},
        {at(2.0, Streamtrace_SurfaceLine), "outside of the data field"},
        {at(0.0, Streamtrace_TwoDLine), "for 2D plots"},
        {at(0.0, 5), "must be from 0 to 4"},
        {at(NAN, Streamtrace_VolumeLine), "outside of the data field"},
        {[](ArgList& arguments) { arguments.appendDouble("X1", 0.0); }, "\"Y1\""},
        {[](ArgList& arguments) { arguments.appendArbParam("StreamType", 2); }, "the place where it starts"},
        {[](ArgList& arguments) { arguments.appendArbParam("NumPts", 5001); }, "from 1 to 5000"},
        {[](ArgList& arguments) { arguments.appendArbParam("NumPts", 0); }, "from 1 to 5000"},
        {[](ArgList& arguments) { arguments.appendArbParam("DistributionRegion", 3); }, "no surfaces"},
        {[](ArgList& arguments) { arguments.appendArbParam("I1", 6); }, "must be from 1 to 5"},
        {[](ArgList& arguments) { arguments.appendArbParam("Where", 1); }, "\"Where\" is unknown"},
    };
    for (const auto& [fill, cause] : bad) {
        EXPECT_FALSE(add(fill)) << cause;
        EXPECT_THAT(kernel().lastError(), HasSubstr(cause));
    }
    for (const auto& [first, last] : {std::pair{0L, 0L}, std::pair{1L, 1L}}) {
        const LockScope lock;
        EXPECT_FALSE(VtxUtilStreamtraceDeleteRange(first, last));
        EXPECT_THAT(kernel().lastError(), HasSubstr("There is no streamtrace"));
    }
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 0);
    EXPECT_TRUE(notices.empty());

    for (const char* variable : {"GlobalStream/UVar", "GlobalStream/VVar", "GlobalStream/WVar"}) {
        set(variable, 0L);
    }
    EXPECT_FALSE(add(at(0.0, Streamtrace_VolumeLine)));
    EXPECT_THAT(kernel().lastError(), HasSubstr("vectors"));
}

TEST_F(StreamtracesTest, AreDeletedPickedAndUndone)
{
    showFlow(PlotType_Cartesian2D, {21, 21, 1}, square, uniform);
    for (const double x : {-1.0, 0.0, 1.0, 1.5}) {
        ASSERT_TRUE(addAt({x, 0.0, 0.0}));
    }
    notices.clear();
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilStreamtraceDeleteRange(2, 3)) << kernel().lastError();
    }
    EXPECT_THAT(kinds(), ElementsAre(StateChange_Streamtrace));
    EXPECT_THAT(xPositions(), ElementsAre(-1.0, 1.5));
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilPickStreamtrace(2)) << kernel().lastError();
        EXPECT_FALSE(VtxUtilPickStreamtrace(3));
    }
    ASSERT_EQ(VtxUtilPickListGetType(1), PickObject_Streamtrace);
    EXPECT_EQ(VtxUtilPickListGetStreamtrace(1), 2);
    EXPECT_EQ(VtxUtilPickListGetZoneNumber(1), 0);
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilStreamtraceDeleteRange(1, 1));
    }
    EXPECT_EQ(VtxUtilPickListGetStreamtrace(1), 1) << "the picked one has moved up";
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilPickDelete()) << kernel().lastError();
    }
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 0);
    EXPECT_EQ(VtxUtilPickListGetCount(), 0);
    VtxUtilUndo();
    VtxUtilUndo();
    VtxUtilUndo();
    EXPECT_THAT(xPositions(), ElementsAre(-1.0, 0.0, 1.0, 1.5));
    VtxUtilRedo();
    EXPECT_THAT(xPositions(), ElementsAre(-1.0, 1.5));
}

TEST_F(StreamtracesTest, AreTracedOnceAndAgainOnlyForWhatChangesTheirWay)
{
    showFlow(PlotType_Cartesian2D, {21, 21, 1}, square, turning);
    const auto tracedBy = [](const std::function<void()>& change) {
        const long before = kernel().streamtracePaths().tracedCount();
        change();
        traced();
        return kernel().streamtracePaths().tracedCount() - before;
    };
    EXPECT_EQ(tracedBy([] { addAt({1.0, 0.0, 0.0}); }), 1);
    EXPECT_EQ(tracedBy([] { addAt({0.5, 0.0, 0.0}); }), 1) << "the first stays as it is";
    const auto before = kernel().streamtracePaths().of(*document().activeFrame());
    EXPECT_EQ(tracedBy([] { set("StreamAttributes/Color", 3L); }), 0);
    EXPECT_EQ(tracedBy([] { set("TwoDAxis/XDetail/RangeMin", -3.0); }), 0);
    EXPECT_EQ(kernel().streamtracePaths().of(*document().activeFrame()), before);
    EXPECT_EQ(tracedBy([] { set("StreamAttributes/CellFraction", 0.5); }), 2);
    EXPECT_EQ(tracedBy([] { set("GlobalStream/UVar", 1L); }), 2);
    EXPECT_EQ(tracedBy([] {
                  const LockScope lock;
                  VtxUtilStreamtraceDeleteRange(1, 1);
              }),
              0);
    EXPECT_EQ(tracedBy([] { set("StreamtraceLayers/Show", 0L); }), 0);
    EXPECT_TRUE(traced().empty());
    EXPECT_EQ(tracedBy([] { addAt({1.0, 1.0, 0.0}); }), 0) << "nobody sees it";
}

TEST_F(StreamtracesTest, EndAtBlankedCellsWhenTheyAreToObeyThem)
{
    showFlow(PlotType_Cartesian2D, {21, 21, 1}, square, uniform);
    ASSERT_TRUE(addAt({-1.0, 0.1, 0.0}));
    set("Blanking/Value/Include", 1L);
    set("Blanking/Value/Constraint/Include", 1L, 1);
    set("Blanking/Value/Constraint/VarA", 1L, 1);
    set("Blanking/Value/Constraint/RelOp", long{RelOp_GreaterThanOrEqual}, 1);
    set("Blanking/Value/Constraint/ValueCutoff", 1.0, 1);
    EXPECT_NEAR(path(0).points.back()[0], 2.0, 0.06);
    set("StreamAttributes/ObeySourceZoneBlanking", 1L);
    EXPECT_NEAR(path(0).points.back()[0], 1.0, 0.06);
}

TEST_F(StreamtracesTest, AreKeptByLayouts)
{
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilDataReadSample("flow3d")) << kernel().lastError();
    }
    ASSERT_TRUE(addAt({-3.0, 1.0 / 3.0, 0.5}, Streamtrace_VolumeRod, StreamDir_Reverse)) << kernel().lastError();
    ASSERT_TRUE(addAt({-3.0, 0.0, 6.0}, Streamtrace_SurfaceLine)) << kernel().lastError();
    const std::string written = kernel().layout().text();
    EXPECT_THAT(written, HasSubstr("Streamtrace StreamType=4 StreamDirection=1 X=-3.0 Y=0.333"));
    const std::string file = testing::TempDir() + "streamtraces.vxlay";
    kernel().layout().saveCopy(file);
    ASSERT_TRUE(VtxUtilLayoutOpen(file.c_str())) << kernel().lastError();
    std::remove(file.c_str());
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 2);
    Streamtrace_e type{};
    StreamDir_e direction{};
    double y = 0.0;
    EXPECT_TRUE(VtxUtilStreamtraceGetFormat(1, &type, &direction));
    EXPECT_TRUE(VtxUtilStreamtraceGetPosition(1, nullptr, &y, nullptr));
    EXPECT_EQ(type, Streamtrace_VolumeRod);
    EXPECT_EQ(direction, StreamDir_Reverse);
    EXPECT_EQ(y, 1.0 / 3.0);
    EXPECT_FALSE(VtxUtilStreamtraceGetPosition(3, &y, nullptr, nullptr));
}

} // namespace vantrix::kernel
