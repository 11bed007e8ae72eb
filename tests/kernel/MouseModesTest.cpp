#include "KernelFixture.h"

namespace vantrix::kernel {

namespace {

using MouseModesTest = KernelTest;

} // namespace

TEST_F(MouseModesTest, AModeIsValidWhereThePlotHasUseForIt)
{
    struct Case
    {
        MouseMode_e mode;
        bool inSketch;
        bool in2D;
        bool in3D;
        bool inXYLine;
    };
    const std::vector<Case> cases{
        {MouseMode_Selector, true, true, true, true},      {MouseMode_Zoom, true, true, true, true},
        {MouseMode_Rotate, false, false, true, false},     {MouseMode_Probe, false, true, true, true},
        {MouseMode_Text, true, true, true, true},          {MouseMode_CreateFrame, true, true, true, true},
        {MouseMode_Streamtrace, false, true, true, false}, {static_cast<MouseMode_e>(8), false, false, false, false}};
    for (const Case& one : cases) {
        EXPECT_EQ(VtxUtilMouseIsValidMode(one.mode), one.inSketch) << one.mode;
    }
    show("flow3d");
    for (const Case& one : cases) {
        set("PlotType", long{PlotType_Cartesian3D});
        EXPECT_EQ(VtxUtilMouseIsValidMode(one.mode), one.in3D) << one.mode;
        set("PlotType", long{PlotType_Cartesian2D});
        EXPECT_EQ(VtxUtilMouseIsValidMode(one.mode), one.in2D) << one.mode;
        set("PlotType", long{PlotType_XYLine});
        EXPECT_EQ(VtxUtilMouseIsValidMode(one.mode), one.inXYLine) << one.mode;
    }
    EXPECT_TRUE(VtxUtilMouseIsValidMode(MouseMode_Translate));
    set("PlotType", long{PlotType_PolarLine});
    EXPECT_FALSE(VtxUtilMouseIsValidMode(MouseMode_Translate)) << "the centre stays";
}

TEST_F(MouseModesTest, TheSelectorTakesOverWhenThePlotHasNoUseForTheModeAnyMore)
{
    const LockScope lock;
    EXPECT_FALSE(VtxUtilMouseSetMode(MouseMode_Rotate));
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Selector);
    show("flow3d");
    notices.clear();
    ASSERT_TRUE(VtxUtilMouseSetMode(MouseMode_Rotate));
    ASSERT_TRUE(VtxUtilMouseSetMode(MouseMode_Rotate));
    EXPECT_EQ(kinds(), std::vector<int>{StateChange_MouseMode});
    set("PlotType", long{PlotType_Cartesian2D});
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Selector);
    EXPECT_EQ(kinds().back(), StateChange_MouseMode);
}

TEST_F(MouseModesTest, AModeGoesWithTheStepThatIsRolledBackAndStaysWithUndo)
{
    show("flow3d");
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilMouseSetMode(MouseMode_Rotate));
    }
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilMouseSetMode(MouseMode_Probe));
        set("PlotType", long{PlotType_Sketch});
        EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Selector) << "nothing to probe";
        VtxUtilLockRollBack();
    }
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Rotate);
    {
        const LockScope lock;
        set("FrameLayout/Width", 5.0);
        ASSERT_TRUE(VtxUtilMouseSetMode(MouseMode_Zoom));
    }
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Zoom);
}

} // namespace vantrix::kernel
