#include "kernel/PickList.h"

#include "KernelFixture.h"

using namespace vantrix::kernel;
using testing::ElementsAre;

namespace {

/* A page on which one object is seen everywhere. */
class OneObject : public PickSurface
{
public:
    std::optional<PickedObject> objectAt(double x, double y) const override
    {
        asked = {x, y};
        return object;
    }
    std::optional<PickedObject> object;
    mutable std::pair<double, double> asked;
};

class PickListTest : public KernelTest
{
protected:
    void SetUp() override
    {
        KernelTest::SetUp();
        kernel().pickList().setSurface(&m_surface);
        show("flow3d");
        notices.clear();
    }
    void TearDown() override
    {
        kernel().pickList().setSurface(nullptr);
        KernelTest::TearDown();
    }
    OneObject m_surface;
};

} // namespace

TEST_F(PickListTest, KeepsWhatWasPickedInOrderAndOnce)
{
    const LockScope lock;
    EXPECT_TRUE(VtxUtilPickAxis('Z', 1, AxisSubObject_Title));
    EXPECT_TRUE(VtxUtilPickZone(1));
    EXPECT_TRUE(VtxUtilPickZone(1));
    EXPECT_THAT(kinds(), ElementsAre(StateChange_PickListItem, StateChange_PickListItem));
    ASSERT_EQ(VtxUtilPickListGetCount(), 2);
    EXPECT_EQ(VtxUtilPickListGetType(1), PickObject_Axis);
    EXPECT_EQ(VtxUtilPickListGetAxisKind(1), 'Z');
    EXPECT_EQ(VtxUtilPickListGetAxisNumber(1), 1);
    EXPECT_EQ(VtxUtilPickListGetAxisSubObject(1), AxisSubObject_Title);
    EXPECT_EQ(VtxUtilPickListGetFrame(1), VtxUtilFrameGetUniqueID());
    EXPECT_EQ(VtxUtilPickListGetZoneNumber(1), 0) << "an axis has no zone";
    EXPECT_EQ(VtxUtilPickListGetZoneNumber(2), 1);
    EXPECT_EQ(VtxUtilPickListGetType(3), PickObject_None);
    EXPECT_TRUE(VtxUtilPickClear());
    EXPECT_TRUE(VtxUtilPickClear());
    EXPECT_EQ(kinds().back(), StateChange_PickListCleared);
    EXPECT_EQ(notices.size(), 3U) << "clearing an empty list tells nobody";
}

TEST_F(PickListTest, RefusesWhatDoesNotExist)
{
    const LockScope lock;
    EXPECT_FALSE(VtxUtilPickZone(99));
    EXPECT_FALSE(VtxUtilPickAxis('X', 2, AxisSubObject_AxisLine)) << "of a 3D plot";
    EXPECT_FALSE(VtxUtilPickAxis('R', 1, AxisSubObject_AxisLine));
    EXPECT_FALSE(VtxUtilPickFrame(123456));
    EXPECT_FALSE(VtxUtilPickText(1));
    EXPECT_FALSE(VtxUtilPickLegend(PickObject_LineLegend)) << "of a field plot";
    EXPECT_FALSE(VtxUtilPickLegend(PickObject_Zone));
    EXPECT_FALSE(VtxUtilPickDelete());
    EXPECT_EQ(VtxUtilPickListGetCount(), 0);
    EXPECT_TRUE(notices.empty());
}

TEST_F(PickListTest, PicksWhatIsSeenAtAPlace)
{
    const LockScope lock;
    const long frame = VtxUtilFrameGetUniqueID();
    m_surface.object = {.type = PickObject_Zone, .frameId = frame, .number = 1};
    EXPECT_TRUE(VtxUtilPickAtPosition(2.5, 4.0, false));
    EXPECT_EQ(m_surface.asked, std::pair(2.5, 4.0));
    m_surface.object = {.type = PickObject_ContourLegend, .frameId = frame};
    EXPECT_TRUE(VtxUtilPickAtPosition(0.0, 0.0, true));
    EXPECT_EQ(VtxUtilPickListGetCount(), 2);
    EXPECT_TRUE(VtxUtilPickAtPosition(0.0, 0.0, false));
    EXPECT_EQ(VtxUtilPickListGetCount(), 1);
    m_surface.object.reset();
    EXPECT_FALSE(VtxUtilPickAtPosition(0.0, 0.0, false));
    EXPECT_EQ(VtxUtilPickListGetCount(), 0);
    kernel().pickList().setSurface(nullptr);
    EXPECT_FALSE(VtxUtilPickAtPosition(0.0, 0.0, false)) << "nothing is drawn";
}

TEST_F(PickListTest, EmptiesItselfWhenAnObjectGoes)
{
    const auto pickZone = [](long zone) {
        const LockScope lock;
        return VtxUtilPickZone(zone);
    };
    ASSERT_TRUE(pickZone(1));
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(2, 2, 2, 0, 0, 0, 1, 1, 1, FieldDataType_Double));
    }
    const long added = VtxUtilDataSetGetNumZones();
    EXPECT_EQ(VtxUtilPickListGetCount(), 1) << "a zone came, none went";
    ASSERT_TRUE(pickZone(added));
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilPickListGetCount(), 0);

    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilPickAxis('Z', 1, AxisSubObject_AxisLine));
        ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_Cartesian2D));
    }
    EXPECT_EQ(VtxUtilPickListGetCount(), 0) << "a 2D plot has no Z axis";

    ASSERT_TRUE(pickZone(1));
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilPageCreate());
    }
    EXPECT_EQ(VtxUtilPickListGetCount(), 0) << "another page is active";
}

TEST_F(PickListTest, DeletesPickedFramesAsOneStep)
{
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilFrameCreate(1, 1, 2, 2));
        ASSERT_TRUE(VtxUtilFrameCreate(4, 1, 2, 2));
    }
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilPickFrame(VtxUtilFrameGetIdAt(2)));
        ASSERT_TRUE(VtxUtilPickFrame(VtxUtilFrameGetIdAt(3)));
        EXPECT_TRUE(VtxUtilPickDelete());
    }
    EXPECT_EQ(VtxUtilFrameGetCount(), 1);
    EXPECT_EQ(VtxUtilPickListGetCount(), 0);
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilFrameGetCount(), 3);
}
