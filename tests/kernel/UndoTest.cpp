#include "KernelFixture.h"

#include "kernel/ApplicationLock.h"

namespace vantrix::kernel {

namespace {

/* Writes what is done to it into a log, and keeps so many bytes while it is done or undone. */
class LoggedChange : public UndoableChange
{
public:
    LoggedChange(std::string& log, char name, std::size_t doneBytes = 0, std::size_t undoneBytes = 0)
        : m_log(log)
        , m_name(name)
        , m_doneBytes(doneBytes)
        , m_undoneBytes(undoneBytes)
    {}
    void undo() override { m_log += std::string("-") + m_name; }
    void redo() override { m_log += std::string("+") + m_name; }
    std::size_t memory(bool isDone) const override { return isDone ? m_doneBytes : m_undoneBytes; }

private:
    std::string& m_log;
    char m_name;
    std::size_t m_doneBytes;
    std::size_t m_undoneBytes;
};

class UndoStackTest : public testing::Test
{
protected:
    void record(char name, std::size_t doneBytes = 0, std::size_t undoneBytes = 0)
    {
        m_undo.record(std::make_unique<LoggedChange>(m_log, name, doneBytes, undoneBytes));
    }

    std::string m_log;
    StateChanges m_changes;
    UndoStack m_undo{m_changes};
};

} // namespace

TEST_F(UndoStackTest, AStepIsUndoneBackwardsAndRedoneForwardsAsOne)
{
    m_undo.beginStep();
    m_undo.nameStep("First");
    m_undo.nameStep("Second");
    record('a');
    record('b');
    EXPECT_FALSE(m_undo.undo()) << "a step is under way";
    m_undo.endStep();
    EXPECT_EQ(m_undo.undoName(), "First");
    ASSERT_TRUE(m_undo.undo());
    ASSERT_TRUE(m_undo.redo());
    EXPECT_EQ(m_log, "-b-a+a+b");
    EXPECT_FALSE(m_undo.redo());
}

TEST_F(UndoStackTest, AStepWithoutChangesLeavesNoTraceAndANewOneForgetsWhatCouldBeRedone)
{
    record('a');
    m_undo.undo();
    m_undo.beginStep();
    m_undo.endStep();
    EXPECT_TRUE(m_undo.canRedo());
    record('b');
    EXPECT_FALSE(m_undo.canRedo());
}

TEST_F(UndoStackTest, RollingBackEmptiesTheStepThatIsUnderWay)
{
    m_undo.beginStep();
    record('a');
    record('b');
    m_undo.rollBackStep();
    EXPECT_EQ(m_log, "-b-a");
    EXPECT_TRUE(m_undo.isInStep());
    m_undo.endStep();
    EXPECT_FALSE(m_undo.canUndo());
}

TEST_F(UndoStackTest, RollingBackToAMarkLeavesWhatWasBefore)
{
    m_undo.beginStep();
    record('a');
    const std::size_t mark = m_undo.mark();
    EXPECT_EQ(m_undo.lastOfStep(), nullptr) << "nothing is merged across a mark";
    record('b');
    record('c');
    EXPECT_NE(m_undo.lastOfStep(), nullptr);
    m_undo.rollBackStep(mark);
    EXPECT_EQ(m_log, "-c-b");
    m_undo.endStep();
    m_undo.undo();
    EXPECT_EQ(m_log, "-c-b-a");
}

TEST_F(UndoStackTest, WhatUndoneStepsKeepCountsAndTheFarthestGo)
{
    m_undo.setMemoryBound(100);
    record('a', 0, 40);
    record('b', 0, 80);
    record('c', 0, 70);
    record('d', 0, 10);
    m_undo.undo();
    m_undo.undo();
    EXPECT_EQ(m_undo.undo(), true) << "80 + 70 + 10 do not fit";
    EXPECT_TRUE(m_undo.canUndo());
    EXPECT_TRUE(m_undo.redo());
    EXPECT_FALSE(m_undo.canRedo()) << "the steps behind it were dropped";
    EXPECT_EQ(m_log, "-d-c-b+b");
    m_undo.undo();
    m_undo.undo();
    EXPECT_TRUE(m_undo.redo());
    EXPECT_FALSE(m_undo.canRedo()) << "40 + 80 do not fit";
}

TEST_F(UndoStackTest, OldestStepsGoWhenTheMemoryBoundIsPassed)
{
    m_undo.setMemoryBound(100);
    record('a', 60);
    record('b', 60);
    record('c', 40);
    m_undo.undo();
    m_undo.undo();
    EXPECT_FALSE(m_undo.canUndo());
    EXPECT_EQ(m_log, "-c-b");
    record('d', 101);
    EXPECT_FALSE(m_undo.canUndo()) << "one step alone passes the bound";
}

using UndoTest = KernelTest;

TEST_F(UndoTest, AStepIsRecordedFromTheFirstLockThatAsksForItOn)
{
    VtxUtilLockStart(false);
    EXPECT_FALSE(kernel().lock().isRecorded());
    VtxUtilLockStart(true);
    EXPECT_TRUE(kernel().lock().isRecorded());
    VtxUtilLockFinish();
    EXPECT_TRUE(kernel().lock().isRecorded());
    VtxUtilLockFinish();
    EXPECT_FALSE(kernel().lock().isRecorded());
    VtxUtilLockStart(false);
    EXPECT_FALSE(kernel().lock().isRecorded()) << "the next step asks anew";
    VtxUtilLockFinish();
}

TEST_F(UndoTest, SetsOfOneValueInAStepAreOneChangeAndTheLockNests)
{
    VtxUtilLockStart(true);
    VtxUtilLockStart(false);
    EXPECT_TRUE(kernel().lock().isRecorded());
    style().set(style().entry("FrameLayout/Width"), -1, -1, 5.0);
    style().set(style().entry("FrameLayout/Width"), -1, -1, 6.0);
    VtxUtilLockFinish();
    EXPECT_TRUE(VtxUtilLockIsOn());
    style().set(style().entry("FrameName"), -1, -1, std::string("one"));
    VtxUtilLockFinish();
    EXPECT_FALSE(VtxUtilLockIsOn());

    notices.clear();
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(kinds(), (std::vector<int>{StateChange_Style, StateChange_Style, StateChange_HistoryStep}));
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(9.0));
    EXPECT_FALSE(VtxUtilUndo());
    ASSERT_TRUE(VtxUtilRedo());
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(6.0));
    EXPECT_EQ(value("FrameName"), StyleData(std::string("one")));
}

TEST_F(UndoTest, DataOfDeletedFramesAndPagesAndOfUndoneStepsCount)
{
    constexpr std::size_t bound = 1000000;
    UndoStack& undo = kernel().undoStack();
    const auto create = [] {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(50, 50, 50, 0, 0, 0, 1, 1, 1, FieldDataType_Double)); // 3 MB
    };
    const auto step = [](const std::function<bool()>& work) {
        const LockScope lock;
        ASSERT_TRUE(work());
    };
    const auto keptDataSets = [&] {
        std::set<const DataSet*> kept;
        undo.forEachDataSet([&](const DataSet& dataSet) { kept.insert(&dataSet); });
        return kept.size();
    };
    const std::pair<std::function<bool()>, std::function<bool()>> deletions[] = {
        {[] { return VtxUtilFrameCreate(1, 1, 2, 2); }, [] { return VtxUtilFrameDelete(VtxUtilFrameGetUniqueID()); }},
        {[] { return VtxUtilPageCreate(); }, [] { return VtxUtilPageDelete(VtxUtilPageGetCount()); }}};
    for (const auto& [make, remove] : deletions) {
        kernel().reset();
        step(make);
        create();
        undo.setMemoryBound(bound);
        EXPECT_TRUE(undo.canUndo()) << "the data are in the plot";
        step(remove);
        EXPECT_FALSE(undo.canUndo()) << "the deleted frame alone keeps the data";
        EXPECT_EQ(keptDataSets(), 0u);
        undo.setMemoryBound(std::size_t{2} << 30);
    }
    kernel().reset();
    step(deletions[0].first);
    create();
    step(deletions[0].second);
    EXPECT_EQ(keptDataSets(), 1u) << "to be unloaded";
    undo.setMemoryBound(100 * bound);
    ASSERT_TRUE(undo.undo());
    ASSERT_TRUE(undo.undo());
    EXPECT_TRUE(undo.canRedo());
    undo.setMemoryBound(bound);
    EXPECT_FALSE(undo.canRedo()) << "the undone step alone keeps the data";
    undo.setMemoryBound(std::size_t{2} << 30);
}

TEST_F(UndoTest, RollingBackTellsWhatItTookBack)
{
    const LockScope lock;
    style().set(style().entry("FrameLayout/Width"), -1, -1, 5.0);
    notices.clear();
    ASSERT_TRUE(VtxUtilLockRollBack());
    EXPECT_EQ(kinds(), std::vector<int>{StateChange_Style});
    EXPECT_EQ(value("FrameLayout/Width"), StyleData(9.0));
}

TEST(Violations, AreCountedForChangesWithoutTheLockAndUnpairedFinishes)
{
    Kernel::instance().reset();
    const long before = VtxUtilLockGetViolationCount();
    VtxUtilLockFinish();
    VtxUtilMouseSetMode(MouseMode_Zoom);
    EXPECT_EQ(VtxUtilLockGetViolationCount(), before + 2);
    EXPECT_FALSE(VtxUtilLockIsOn());
    EXPECT_FALSE(VtxUtilLockRollBack());
}

} // namespace vantrix::kernel
