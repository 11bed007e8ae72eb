#include "KernelFixture.h"

namespace vantrix::kernel {

namespace {

using DocumentTest = KernelTest;

} // namespace

TEST_F(DocumentTest, BeginsWithOnePageAndOneEmptyFrame)
{
    EXPECT_EQ(VtxUtilPageGetCount(), 1);
    EXPECT_EQ(VtxUtilFrameGetCount(), 1);
    EXPECT_GT(VtxUtilFrameGetUniqueID(), 0);
    EXPECT_EQ(document().activeDataSet(), nullptr);
}

TEST_F(DocumentTest, ADeletedFrameComesBackInItsPlaceWithItsStyle)
{
    VtxUtilLockStart(true);
    Frame* second = document().addFrame();
    const long id = second->id();
    document().addFrame();
    style().setOf(id, style().entry("FrameName"), -1, -1, std::string("middle"));
    VtxUtilLockFinish();
    const long top = document().activeFrame()->id();
    notices.clear();
    {
        const LockScope lock;
        ASSERT_TRUE(document().deleteFrame(id));
        EXPECT_FALSE(document().deleteFrame(id));
    }
    EXPECT_EQ(document().activeFrame()->id(), top) << "the active frame stays the same one";
    EXPECT_EQ(kinds(), (std::vector<int>{StateChange_FrameDeleted, StateChange_NewActiveFrame}));
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(document().activePage()->frames[1]->id(), id);
    EXPECT_EQ(style().text(id, style().entry("FrameName")), "middle");
    EXPECT_EQ(document().activeFrame()->id(), top);
    ASSERT_TRUE(VtxUtilRedo());
    EXPECT_EQ(document().frameById(id), nullptr);
}

TEST_F(DocumentTest, WithoutAFrameFrameValuesHaveNoContext)
{
    const LockScope lock;
    document().deleteFrame(document().activeFrame()->id());
    EXPECT_EQ(VtxUtilFrameGetCount(), 0);
    EXPECT_EQ(VtxUtilFrameGetUniqueID(), 0);
    EXPECT_EQ(VtxUtilFrameGetPlotType(), PlotType_Sketch);
    StyleData value;
    EXPECT_EQ(style().get(style().entry("FrameName"), -1, -1, value), GetValueReturnCode_NoContext);
    EXPECT_EQ(style().set(style().entry("FrameName"), -1, -1, std::string("x")), SetValueReturnCode_NoContext);
    EXPECT_EQ(VtxUtilFrameSetBackgroundColor(1), SetValueReturnCode_NoContext);
    EXPECT_EQ(style().get(style().entry("Paper/ShowGrid"), -1, -1, value), GetValueReturnCode_Ok);
}

TEST_F(DocumentTest, FramesAreReorderedAndThePagesLastOneStays)
{
    const LockScope lock;
    const long bottom = document().activeFrame()->id();
    const long top = document().addFrame()->id();
    ASSERT_TRUE(document().raiseFrame(bottom));
    EXPECT_EQ(document().activePage()->frames.back()->id(), bottom);
    EXPECT_EQ(document().activeFrame()->id(), top);
    ASSERT_TRUE(document().lowerFrame(bottom));
    EXPECT_EQ(document().activePage()->frames.front()->id(), bottom);

    EXPECT_FALSE(document().deletePage(1));
    document().addPage();
    EXPECT_FALSE(document().setActiveFrame(bottom)) << "a frame of another page";
    ASSERT_TRUE(document().deletePage(2));
    EXPECT_EQ(document().activeFrame()->id(), top);
}

TEST_F(DocumentTest, AChangedDataSetIsSwappedInForAllFramesThatShowItAndBackByUndo)
{
    show("lines");
    const auto data = document().activeDataSet();
    Frame* first = document().activeFrame();
    Frame* second = nullptr;
    {
        const LockScope lock;
        second = document().addFrame();
        document().attachDataSet(*second, data);
    }
    notices.clear();
    {
        const LockScope lock;
        DataSet changed = *data;
        changed.addZone(*data->zones[0]);
        document().replaceDataSet(std::move(changed), {StateChange_ZonesAdded});
    }
    EXPECT_EQ(kinds(), std::vector<int>{StateChange_ZonesAdded});
    EXPECT_EQ(first->dataSet(), second->dataSet());
    EXPECT_EQ(first->dataSet()->zoneCount(), data->zoneCount() + 1);
    notices.clear();
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(first->dataSet(), data);
    EXPECT_EQ(second->dataSet(), data);
    EXPECT_EQ(kinds(), (std::vector<int>{StateChange_ZonesDeleted, StateChange_HistoryStep}));
}

TEST_F(DocumentTest, PaperHasItsSizeInItsOrientation)
{
    struct Case
    {
        PaperSize_e size;
        bool portrait;
        double width;
        double height;
    };
    set("Paper/Custom2/Width", 3.0);
    for (const Case& one : {Case{PaperSize_Letter, true, 8.5, 11}, Case{PaperSize_Double, false, 17, 11},
                            Case{PaperSize_A4, true, 210 / 25.4, 297 / 25.4},
                            Case{PaperSize_A3, false, 420 / 25.4, 297 / 25.4}, Case{PaperSize_Custom2, true, 3, 14}}) {
        double width = 0;
        double height = 0;
        ASSERT_TRUE(VtxUtilPaperGetDimensionsBySize(one.size, one.portrait, &width, &height));
        EXPECT_EQ(width, one.width);
        EXPECT_EQ(height, one.height);
    }
    double width = 0;
    ASSERT_TRUE(VtxUtilPaperGetDimensions(&width, nullptr));
    EXPECT_EQ(width, 11.0) << "letter, lying";
    EXPECT_FALSE(VtxUtilPaperGetDimensionsBySize(static_cast<PaperSize_e>(6), true, &width, nullptr));
}

} // namespace vantrix::kernel
