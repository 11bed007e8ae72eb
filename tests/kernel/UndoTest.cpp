#include "KernelFixture.h"

#include "kernel/ApplicationLock.h"

namespace vantrix::kernel {

namespace {

/* Writes what is done to it into a log. */
class LoggedChange : public UndoableChange
{
public:
    LoggedChange(std::string& log, char name, std::size_t bytes = 0)
        : m_log(log)
        , m_name(name)
        , m_bytes(bytes)
    {}
    void undo() override { m_log += std::string("-") + m_name; }
    void redo() override { m_log += std::string("+") + m_name; }
    std::size_t memory() const override { return m_bytes; }

private:
    std::string& m_log;
    char m_name;
    std::size_t m_bytes;
};

class UndoStackTest : public testing::Test
{
protected:
    void record(char name, std::size_t bytes = 0) { m_undo.record(std::make_unique<LoggedChange>(m_log, name, bytes)); }

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
