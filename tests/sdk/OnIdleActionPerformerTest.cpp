#include "sdk/OnIdleAfterStateChangeActionPerformer.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

#include <QCoreApplication>

#include <memory>

using namespace vantrix::sdk;
using testing::ElementsAre;
using vantrix::test::RecordingHost;
using vantrix::toolbox::StateChangeEventInterface;

namespace {

class OnIdleActionPerformerTest : public testing::Test
{
protected:
    OnIdleActionPerformerTest() { RecordingHost::instance().reset(); }

    /// A turn of the event loop, as the user's next key press would make one.
    static void idle() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

    std::string log;
};

} // namespace

TEST_F(OnIdleActionPerformerTest, PerformsOnceOnTheNextTurnHoweverOftenItIsAsked)
{
    OnIdleActionPerformerSingleShot first([this] { log += "a"; });
    OnIdleActionPerformerSingleShot second([this] { log += "b"; });
    second.enableNotification();
    first.enableNotification();
    second.enableNotification();
    EXPECT_EQ(log, "");
    idle();
    idle();
    EXPECT_EQ(log, "ba");
    first.enableNotification();
    idle();
    EXPECT_EQ(log, "baa");
}

TEST_F(OnIdleActionPerformerTest, LeavesWhatAnActionAsksForToTheTurnAfter)
{
    OnIdleActionPerformerSingleShot* self = nullptr;
    OnIdleActionPerformerSingleShot performer([this, &self] {
        log += "a";
        self->enableNotification();
    });
    self = &performer;
    performer.enableNotification();
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(log, "a");
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(log, "aa");
    performer.disableNotification();
    idle();
    EXPECT_EQ(log, "aa");
}

TEST_F(OnIdleActionPerformerTest, NeverPerformsForAnOwnerThatIsGone)
{
    std::unique_ptr<OnIdleActionPerformerSingleShot> doomed;
    std::unique_ptr<OnIdleActionPerformerSingleShot> suicidal;
    suicidal = std::make_unique<OnIdleActionPerformerSingleShot>([this, &doomed, &suicidal] {
        doomed.reset();
        suicidal.reset();
        log += "last";
    });
    doomed = std::make_unique<OnIdleActionPerformerSingleShot>([this] { log += "never"; });
    suicidal->enableNotification();
    doomed->enableNotification();
    idle();
    EXPECT_EQ(log, "last");
}

TEST_F(OnIdleActionPerformerTest, ReportsAnActionThatThrowsAndGoesOn)
{
    OnIdleActionPerformerSingleShot first([] { throw std::runtime_error("broken action"); });
    OnIdleActionPerformerSingleShot second([this] { log += "b"; });
    first.enableNotification();
    second.enableNotification();
    idle();
    EXPECT_EQ(log, "b");
    EXPECT_THAT(RecordingHost::instance().statusMessages, ElementsAre("broken action"));
}

TEST_F(OnIdleActionPerformerTest, AfterABurstOfStateChangesPerformsOnceAndStopsAtTheEndOfTheApplication)
{
    OnIdleAfterStateChangeActionPerformer const performer(
        [](StateChangeEventInterface const& event) { return event.kind() == StateChange_Streamtrace; },
        [this] { log += "a"; });
    RecordingHost& host = RecordingHost::instance();
    host.notify(StateChange_View);
    idle();
    EXPECT_EQ(log, "");
    host.notify(StateChange_Streamtrace);
    host.notify(StateChange_View);
    host.notify(StateChange_Streamtrace);
    EXPECT_EQ(log, "");
    idle();
    EXPECT_EQ(log, "a");
    host.notify(StateChange_Streamtrace);
    host.notify(StateChange_Quit);
    host.notify(StateChange_Streamtrace);
    idle();
    EXPECT_EQ(log, "a");
}
