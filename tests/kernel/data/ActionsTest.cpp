#include "LastError.h"
#include "SampleFiles.h"
#include "TemporaryFolder.h"
#include "kernel/DataError.h"
#include "kernel/FieldValues.h"
#include "kernel/KernelFixture.h"
#include "kernel/OpenData.h"
#include "kernel/SilentFrontEnd.h"

#include <cmath>

using namespace vantrix::kernel;
using testing::Contains;
using testing::HasSubstr;

namespace {

bool createCircle(long i, long j, long k)
{
    const LockScope lock;
    VtxUtilUndoSetStepName("Create Circular Zone");
    return VtxUtilCreateCircularZone(i, j, k, 1, 2, 3, 4, 5, FieldDataType_Float);
}

bool deleteZones(const std::vector<long>& zones)
{
    VtxSetHandle set = VtxUtilSetAlloc();
    for (const long zone : zones) {
        VtxUtilSetAddMember(set, zone);
    }
    const LockScope lock;
    const bool result = VtxUtilDataSetDeleteZone(set);
    VtxUtilSetDealloc(&set);
    return result;
}

/* A user who stops the work after some reports. */
class ImpatientFrontEnd : public SilentFrontEnd
{
public:
    explicit ImpatientFrontEnd(int patience)
        : m_patience(patience)
    {
        Kernel::instance().setFrontEnd(this);
    }
    ~ImpatientFrontEnd() override { Kernel::instance().setFrontEnd(nullptr); }

    bool reportProgress(const std::string&, double fraction) override
    {
        last = fraction;
        return m_patience-- > 0;
    }
    void setBusy(bool busy) override { isBusy = busy; }

    double last = 0.0;
    bool isBusy = false;

private:
    int m_patience;
};

} // namespace

class DataActions : public KernelTest
{};

TEST_F(DataActions, TheFirstZoneMakesADataSetWithAPlotOfIt)
{
    for (const long k : {1L, 3L}) {
        kernel().reset();
        notices.clear();
        ASSERT_TRUE(createCircle(3, 5, k)) << lastError();
        EXPECT_EQ(VtxUtilDataSetGetNumVars(), k > 1 ? 3 : 2);
        EXPECT_EQ(VtxUtilDataSetGetNumZones(), 1);
        EXPECT_EQ(VtxUtilFrameGetPlotType(), k > 1 ? PlotType_Cartesian3D : PlotType_Cartesian2D);
        EXPECT_THAT(kinds(), Contains(StateChange_DataSetReset));
        double minimum = 0, maximum = 0;
        ASSERT_TRUE(VtxUtilVarGetMinMax(1, &minimum, &maximum));
        EXPECT_EQ(minimum, -2.0);
        EXPECT_EQ(maximum, 4.0);
        EXPECT_EQ(VtxUtilVarGetNumByAssignment('Y'), 2);
        ASSERT_TRUE(VtxUtilUndo());
        EXPECT_FALSE(VtxUtilDataSetIsAvailable());
    }
}

TEST_F(DataActions, AZoneIsAddedBehindTheOthersAndUndoBringsThePointersBack)
{
    show("flow3d");
    notices.clear();
    const auto before = document().activeDataSet();
    ASSERT_TRUE(createCircle(3, 5, 2)) << lastError();
    const auto after = document().activeDataSet();
    EXPECT_EQ(after->zoneCount(), 2);
    EXPECT_EQ(after->zones[0], before->zones[0]);
    EXPECT_EQ(after->id(), before->id());
    EXPECT_THAT(kinds(), Contains(StateChange_ZonesAdded));
    long i = 0, j = 0, k = 0;
    VtxUtilZoneGetIJK(2, &i, &j, &k);
    EXPECT_EQ((std::vector<long>{i, j, k}), (std::vector<long>{3, 5, 2}));
    EXPECT_EQ(valueRange(*after->field(2, after->variableNumber("Pressure"))->values)->maximum, 0.0);

    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(document().activeDataSet(), before);
    ASSERT_TRUE(VtxUtilRedo());
    EXPECT_EQ(document().activeDataSet(), after);
}

TEST_F(DataActions, AZoneThatDoesNotFitThePlotIsRefused)
{
    show("fe2d");
    const auto before = document().activeDataSet();
    EXPECT_FALSE(createCircle(3, 5, 2));
    EXPECT_THAT(lastError(), HasSubstr("no third axis"));
    EXPECT_FALSE(createCircle(2147483647, 2147483647, 1));
    EXPECT_THAT(lastError(), HasSubstr("index values"));
    show("lines");
    EXPECT_FALSE(createCircle(3, 5, 1));
    EXPECT_THAT(lastError(), HasSubstr("Cartesian"));
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(document().activeDataSet(), before);
}

TEST_F(DataActions, DeletedZonesAreGoneUntilUndo)
{
    show("mixed");
    notices.clear();
    const auto before = document().activeDataSet();
    ASSERT_TRUE(deleteZones({1, 3})) << lastError();
    const auto after = document().activeDataSet();
    ASSERT_EQ(after->zoneCount(), 3);
    EXPECT_EQ(after->zones[0], before->zones[1]);
    EXPECT_EQ(after->zones[1], before->zones[3]);
    EXPECT_EQ(after->zoneEnabled.size(), 3u);
    EXPECT_THAT(kinds(), Contains(StateChange_ZonesDeleted));
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(document().activeDataSet(), before);
}

TEST_F(DataActions, ADeletionThatCannotBeDoneChangesNothing)
{
    EXPECT_FALSE(deleteZones({1}));
    EXPECT_THAT(lastError(), HasSubstr("no data set"));
    show("fe2d");
    const auto before = document().activeDataSet();
    notices.clear();
    EXPECT_FALSE(deleteZones({}));
    EXPECT_THAT(lastError(), HasSubstr("No zones"));
    EXPECT_FALSE(deleteZones({1, 3}));
    EXPECT_THAT(lastError(), HasSubstr("no zone 3"));
    EXPECT_FALSE(deleteZones({1, 2}));
    EXPECT_THAT(lastError(), HasSubstr("at least one"));
    EXPECT_EQ(document().activeDataSet(), before);
    EXPECT_TRUE(notices.empty());
}

TEST_F(DataActions, QuestionsWithoutAnAnswerAreRefused)
{
    char* name = nullptr;
    EXPECT_FALSE(VtxUtilDataSetGetInfo(nullptr, nullptr, nullptr));
    EXPECT_EQ(VtxUtilZoneGetEnabled(), nullptr);
    EXPECT_EQ(VtxUtilVarGetEnabled(), nullptr);
    EXPECT_EQ(VtxUtilVarGetNumByAssignment('X'), 0);
    show("fe2d");
    for (const long number : {0L, -1L, 100L}) {
        EXPECT_FALSE(VtxUtilZoneGetName(number, &name));
        EXPECT_FALSE(VtxUtilVarGetName(number, &name));
        EXPECT_FALSE(VtxUtilVarGetMinMax(number, nullptr, nullptr));
        long i = 9;
        VtxUtilZoneGetIJK(number, &i, nullptr, nullptr);
        EXPECT_EQ(i, 0);
    }
    EXPECT_EQ(VtxUtilVarGetNumByAssignment('Q'), 0);
    ASSERT_TRUE(VtxUtilZoneGetName(2, &name));
    EXPECT_STREQ(name, "Far end");
    VtxUtilStringDealloc(&name);
    VtxSetHandle enabled = VtxUtilZoneGetEnabled();
    EXPECT_EQ(VtxUtilSetGetMemberCount(enabled), 2);
    VtxUtilSetDealloc(&enabled);
}

TEST_F(DataActions, OpeningIsOneStepNamedOpen)
{
    const TemporaryFolder folder;
    samplefiles::formats()[4].write(folder.file("sample.vtu"));
    OpenData(kernel()).files({folder.file("sample.vtu")});
    EXPECT_TRUE(VtxUtilDataSetIsAvailable());
    EXPECT_EQ(VtxUtilFrameGetPlotType(), PlotType_Cartesian3D);
    char* step = VtxUtilUndoGetStepName();
    EXPECT_STREQ(step, "Open");
    VtxUtilStringDealloc(&step);
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_FALSE(VtxUtilDataSetIsAvailable());
    EXPECT_FALSE(kernel().undoStack().canUndo());
}

TEST_F(DataActions, OpeningThatFailsOrIsStoppedLeavesEverything)
{
    const TemporaryFolder folder;
    samplefiles::formats()[4].write(folder.file("sample.vtu"));
    OpenData(kernel()).sample("fe2d");
    const auto before = document().activeDataSet();
    const auto revision = kernel().undoStack().revision();
    notices.clear();
    EXPECT_THROW(OpenData(kernel()).files({folder.file("sample.vtu"), folder.file("missing.vtu")}), DataError);
    for (const int patience : {0, 1, 2}) {
        ImpatientFrontEnd user(patience);
        EXPECT_THROW(OpenData(kernel()).files({folder.file("sample.vtu")}), ActionCancelled);
        EXPECT_GT(user.last, 1.0) << "the progress stays on the screen";
        EXPECT_FALSE(user.isBusy);
    }
    EXPECT_EQ(document().activeDataSet(), before);
    EXPECT_EQ(kernel().undoStack().revision(), revision);
    EXPECT_TRUE(notices.empty());
}
