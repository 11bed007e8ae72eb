#include "KernelFixture.h"

#include <limits>

using namespace vantrix::kernel;
using testing::ElementsAre;

namespace {

class FrameActionsTest : public KernelTest
{
protected:
    static bool create(double left, double top, double width, double height)
    {
        const LockScope lock;
        return VtxUtilFrameCreate(left, top, width, height);
    }

    /* The frames' identifiers from the lowest. */
    static std::vector<long> order()
    {
        std::vector<long> ids;
        for (long position = 1; position <= VtxUtilFrameGetCount(); ++position) {
            ids.push_back(VtxUtilFrameGetIdAt(position));
        }
        return ids;
    }
};

} // namespace

TEST_F(FrameActionsTest, CreatesAFrameOnTopAndMakesItActive)
{
    const long first = VtxUtilFrameGetUniqueID();
    ASSERT_TRUE(create(1.5, 0.5, 3.0, 2.0));
    const long second = VtxUtilFrameGetUniqueID();
    EXPECT_THAT(order(), ElementsAre(first, second));
    EXPECT_EQ(value("FrameLayout/XYPos/X"), StyleData(1.5));
    EXPECT_EQ(value("FrameLayout/XYPos/Y"), StyleData(0.5));
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(3.0));
    EXPECT_EQ(value("FrameLayout/Height"), StyleData(2.0));
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_THAT(order(), ElementsAre(first));
    ASSERT_TRUE(VtxUtilRedo());
    EXPECT_THAT(order(), ElementsAre(first, second));
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(3.0));
}

TEST_F(FrameActionsTest, RefusesWhatIsNoFrame)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const double bad[][4] = {{1, 1, 0.2, 2}, {1, 1, 2, 0},    {1, 1, 2, -3},
                             {nan, 1, 2, 2}, {1, 2000, 2, 2}, {1, 1, nan, 2}};
    for (const auto& [left, top, width, height] : bad) {
        EXPECT_FALSE(create(left, top, width, height)) << left << ' ' << top << ' ' << width << ' ' << height;
    }
    const LockScope lock;
    EXPECT_FALSE(VtxUtilFramePop(4711));
    EXPECT_FALSE(VtxUtilFrameDelete(4711));
    EXPECT_FALSE(VtxUtilFrameSetRect(VtxUtilFrameGetUniqueID(), 0, 0, 0.1, 1));
    EXPECT_EQ(VtxUtilFrameGetCount(), 1);
    EXPECT_EQ(VtxUtilUndoGetStepName(), nullptr);
}

TEST_F(FrameActionsTest, PopsAndPushes)
{
    const long first = VtxUtilFrameGetUniqueID();
    ASSERT_TRUE(create(1, 1, 2, 2));
    const long second = VtxUtilFrameGetUniqueID();
    {
        const LockScope lock;
        EXPECT_TRUE(VtxUtilFramePop(first));
    }
    EXPECT_THAT(order(), ElementsAre(second, first));
    EXPECT_EQ(VtxUtilFrameGetUniqueID(), second) << "the active frame stays active";
    {
        const LockScope lock;
        EXPECT_TRUE(VtxUtilFramePush(first));
    }
    EXPECT_THAT(order(), ElementsAre(first, second));
}

TEST_F(FrameActionsTest, DeletingTheOnlyFrameLeavesAnEmptyOne)
{
    show("fe2d");
    const long first = VtxUtilFrameGetUniqueID();
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilFrameDelete(first));
    }
    EXPECT_EQ(VtxUtilFrameGetCount(), 1);
    EXPECT_NE(VtxUtilFrameGetUniqueID(), first);
    EXPECT_FALSE(VtxUtilDataSetIsAvailable());
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilFrameGetUniqueID(), first);
    EXPECT_TRUE(VtxUtilDataSetIsAvailable());
}

TEST_F(FrameActionsTest, AStepThatIsRolledBackLeavesActiveAndPickedWhatWas)
{
    const long first = VtxUtilFrameGetUniqueID();
    ASSERT_TRUE(create(1, 1, 2, 2));
    const long second = VtxUtilFrameGetUniqueID();
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilPickFrame(first));
    }
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilFrameActivate(first));
        ASSERT_TRUE(VtxUtilFrameCreate(3, 3, 2, 2));
        ASSERT_TRUE(VtxUtilPickClear());
        ASSERT_TRUE(VtxUtilPageCreate());
        ASSERT_TRUE(VtxUtilLockRollBack());
    }
    EXPECT_EQ(VtxUtilPageGetActive(), 1);
    EXPECT_EQ(VtxUtilFrameGetUniqueID(), second);
    ASSERT_EQ(VtxUtilPickListGetCount(), 1);
    EXPECT_EQ(VtxUtilPickListGetFrame(1), first);
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilFrameActivate(first));
    }
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_THAT(order(), ElementsAre(first)) << "activating was no step, creating was";
}

TEST_F(FrameActionsTest, PagesComeAndGo)
{
    const LockScope lock;
    const long frame = VtxUtilFrameGetUniqueID();
    ASSERT_TRUE(VtxUtilPageCreate());
    EXPECT_EQ(VtxUtilPageGetCount(), 2);
    EXPECT_EQ(VtxUtilPageGetActive(), 2);
    EXPECT_FALSE(VtxUtilFrameActivate(frame)) << "it lies on the other page";
    EXPECT_FALSE(VtxUtilPageActivate(3));
    EXPECT_FALSE(VtxUtilPageActivate(0));
    ASSERT_TRUE(VtxUtilPageActivate(1));
    EXPECT_EQ(VtxUtilFrameGetUniqueID(), frame);
    ASSERT_TRUE(VtxUtilPageDelete(2));
    EXPECT_FALSE(VtxUtilPageDelete(1)) << "the last one stays";
    EXPECT_EQ(VtxUtilPageGetCount(), 1);
}

TEST_F(FrameActionsTest, FramesShareDataAndEachHasItsOwnPlot)
{
    EXPECT_EQ(VtxUtilFrameGetDataSetNumber(), 0);
    {
        const LockScope lock;
        EXPECT_FALSE(VtxUtilFrameCreateOnSameData()) << "there are no data";
        EXPECT_FALSE(VtxUtilFrameAttachDataSet(1));
    }
    show("fe2d");
    const long zones = VtxUtilDataSetGetNumZones();
    const long first = VtxUtilFrameGetUniqueID();
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilFrameCreateOnSameData()) << kernel().lastError();
    }
    ASSERT_NE(VtxUtilFrameGetUniqueID(), first);
    EXPECT_EQ(VtxUtilFrameGetDataSetNumber(), 1);
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_XYLine)) << kernel().lastError();
        ASSERT_TRUE(VtxUtilFrameActivate(first));
        EXPECT_EQ(VtxUtilFrameGetPlotType(), PlotType_Cartesian2D);
        ASSERT_TRUE(VtxUtilCreateRectangularZone(2, 2, 1, 0, 0, 0, 1, 1, 0, FieldDataType_Double));
        ASSERT_TRUE(VtxUtilFrameActivate(VtxUtilFrameGetIdAt(2)));
    }
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), zones + 1) << "made in the other frame";

    show("lines");
    ASSERT_EQ(VtxUtilFrameGetDataSetCount(), 2);
    EXPECT_EQ(VtxUtilFrameGetDataSetNumber(), 2) << "the first is that of the lowest frame";
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilFrameAttachDataSet(1));
    }
    EXPECT_EQ(VtxUtilFrameGetDataSetCount(), 1);
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), zones + 1);
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilFrameGetDataSetCount(), 2);
}
