#include "ProbeFixture.h"

#include "kernel/LineMaps.h"

using namespace vantrix::kernel;
using testing::HasSubstr;

TEST_F(ProbeTest, LinesAreInterpolatedAlongAnAxis)
{
    show("lines");
    const auto data = document().activeDataSet();
    const long maps = std::get<long>(value("FrameSetup/NumLineMaps"));
    ASSERT_GT(maps, 1);
    const long xVariable = std::get<long>(value("LineMap/Assignment/XAxisVar", 1));
    const long yVariable = std::get<long>(value("LineMap/Assignment/YAxisVar", 1));
    const long zone = std::get<long>(value("LineMap/Assignment/Zone", 1));
    vtkDataArray& xs = *data->field(zone, xVariable)->values;
    vtkDataArray& ys = *data->field(zone, yVariable)->values;
    const double middle = (xs.GetComponent(4, 0) + xs.GetComponent(5, 0)) / 2.0;
    ASSERT_TRUE(probeLine('X', 1, middle)) << lastError();
    EXPECT_EQ(VtxUtilProbeLineGetMapCount(), maps);
    EXPECT_EQ(VtxUtilProbeLineGetMap(1), 1);
    double y = 0.0;
    ASSERT_TRUE(VtxUtilProbeLineGetValue(1, &y));
    EXPECT_NEAR(y, (ys.GetComponent(4, 0) + ys.GetComponent(5, 0)) / 2.0, 1e-7);

    set("ActiveLineMaps", 0L, 2);
    ASSERT_TRUE(probeLine('X', 1, xs.GetComponent(3, 0)));
    EXPECT_EQ(VtxUtilProbeLineGetMapCount(), maps - 1);
    ASSERT_TRUE(VtxUtilProbeLineGetValue(1, &y));
    EXPECT_EQ(y, ys.GetComponent(3, 0)) << "a point of the line is met exactly";

    EXPECT_FALSE(probeLine('X', 1, -1e9));
    EXPECT_FALSE(probeLine('X', 2, middle)) << "no line map uses X2";
    EXPECT_FALSE(probeLine('R', 1, middle));
    EXPECT_THAT(lastError(), HasSubstr("no axis R1"));
}

TEST_F(ProbeTest, APointOfALineIsTakenByIndexOrNearness)
{
    show("lines");
    const auto data = document().activeDataSet();
    const long yVariable = std::get<long>(value("LineMap/Assignment/YAxisVar", 2));
    const long xVariable = std::get<long>(value("LineMap/Assignment/XAxisVar", 2));
    const long zone = std::get<long>(value("LineMap/Assignment/Zone", 2));
    const double x = data->field(zone, xVariable)->values->GetComponent(6, 0);
    const double y = data->field(zone, yVariable)->values->GetComponent(6, 0);
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilProbeAtLineIndexX(Arguments().with("I", 7L).with("LineMap", 2L))) << lastError();
        EXPECT_FALSE(VtxUtilProbeAtLineIndexX(Arguments().with("I", 1L).with("LineMap", 99L)));
        EXPECT_THAT(lastError(), HasSubstr("no line map 99"));
        EXPECT_FALSE(VtxUtilProbeAtLineIndexX(Arguments().with("I", 100000L).with("LineMap", 2L)));
        EXPECT_THAT(lastError(), HasSubstr("I is 100000"));
    }
    const auto expectPicked = [&] {
        double px = 0.0, py = 0.0;
        EXPECT_EQ(VtxUtilProbeLineGetPickedMap(), 2);
        EXPECT_EQ(VtxUtilProbeLineGetPoint(), 7);
        ASSERT_TRUE(VtxUtilProbeLineGetPickedValues(&px, &py));
        EXPECT_EQ(px, x);
        EXPECT_EQ(py, y);
    };
    expectPicked();
    {
        const LockScope lock;
        const auto placeOf = [](long, double px, double py) { return std::optional(std::array{px, py}); };
        EXPECT_TRUE(kernel().probes().perform(LineNearestRequest{{x + 1e-6, y + 1e-6}, placeOf}));
    }
    expectPicked();
    VtxProbeInfoHandle info = VtxUtilProbeInfoGet();
    {
        const LockScope lock;
        EXPECT_TRUE(VtxUtilProbePerform(info, nullptr)) << "again, the same point";
    }
    expectPicked();
    VtxUtilProbeInfoDealloc(&info);
}

TEST_F(ProbeTest, AProbedLineMapIsFollowedToAnotherNumberAndMissedWhenItsZoneIsGone)
{
    show("lines");
    const LockScope lock;
    const auto probePoint = [](long map) {
        EXPECT_TRUE(VtxUtilProbeAtLineIndexX(Arguments().with("I", 7L).with("LineMap", map))) << lastError();
        return VtxUtilProbeInfoGet();
    };
    VtxProbeInfoHandle first = probePoint(1);
    VtxProbeInfoHandle second = probePoint(2);
    LineMaps maps(kernel().style(), *document().activeFrame());
    maps.add({maps.assignment(2)});
    const long twin = maps.count();
    VtxProbeInfoHandle third = probePoint(twin);
    double y = 0.0, again = 0.0;
    ASSERT_TRUE(VtxUtilProbeLineGetPickedValues(nullptr, &y));
    VtxSetHandle zones = VtxUtilSetAlloc();
    VtxUtilSetAddMember(zones, 1);
    ASSERT_TRUE(VtxUtilDataSetDeleteZone(zones)) << lastError();
    VtxUtilSetDealloc(&zones);

    EXPECT_FALSE(VtxUtilProbePerform(first, nullptr));
    EXPECT_THAT(lastError(), HasSubstr("then number 1, is no longer in the plot"));
    ASSERT_TRUE(VtxUtilProbePerform(second, nullptr)) << lastError();
    EXPECT_EQ(VtxUtilProbeLineGetPickedMap(), 1);
    ASSERT_TRUE(VtxUtilProbeLineGetPickedValues(nullptr, &again));
    EXPECT_EQ(again, y);
    ASSERT_TRUE(VtxUtilProbePerform(third, nullptr)) << lastError();
    EXPECT_EQ(VtxUtilProbeLineGetPickedMap(), twin - 1) << "not the other line map that shows the same";
    maps.remove({twin - 1});
    maps.add({maps.assignment(1)});
    EXPECT_FALSE(VtxUtilProbePerform(third, nullptr)) << "nor one that was added in its place";
    for (VtxProbeInfoHandle* info : {&first, &second, &third}) {
        VtxUtilProbeInfoDealloc(info);
    }
}

TEST_F(ProbeTest, ThetaIsTheSameAFullCircleOn)
{
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(5, 1, 1, 0, 0, 0, 400, 0, 0, FieldDataType_Double)) << lastError();
        ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_PolarLine)) << lastError();
    }
    set("LineMap/Assignment/XAxisVar", 1L, 1); // a spiral: R is theta, at 0, 100, 200, 300 and 400 degrees
    set("LineMap/Assignment/YAxisVar", 1L, 1);
    const auto radiusAt = [](double theta) {
        double r = -1.0;
        EXPECT_TRUE(probeLine('T', 1, theta) && VtxUtilProbeLineGetValue(1, &r)) << theta << ": " << lastError();
        return r;
    };
    EXPECT_EQ(radiusAt(20.0), 20.0) << "the first passage";
    EXPECT_EQ(radiusAt(-10.0), 350.0);
    EXPECT_EQ(radiusAt(660.0), 300.0) << "a point of the line, a circle on";
    set("PolarAxis/ThetaPeriod", 500.0);
    EXPECT_EQ(radiusAt(-200.0), 300.0);
    EXPECT_FALSE(probeLine('T', 1, -10.0)) << "490 degrees are beyond the end of the line";
    ASSERT_TRUE(probeLine('R', 1, 250.0)) << lastError();
    EXPECT_FALSE(probeLine('R', 1, -250.0)) << "radii do not go round";
}
