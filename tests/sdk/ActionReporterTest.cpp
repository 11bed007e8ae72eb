#include "sdk/AppLock.h"
#include "sdk/VtxUtilActionReporter.h"
#include "sdk/WaitState.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

using namespace vantrix::sdk;
using testing::ElementsAre;
using vantrix::test::RecordingHost;

TEST(VtxUtilActionReporter, ShowsExactlyTheTextOfTheResult)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    VtxUtilActionReporter const reporter;
    reporter.reportResult(false, "No zone.", "Zone made.");
    reporter.reportResult(true, "No zone.", "Zone made.");
    reporter.reportResult(true, "No zone.");
    EXPECT_THAT(host.errors, ElementsAre("No zone."));
    EXPECT_THAT(host.statusMessages, ElementsAre("Zone made."));
}

TEST(VtxUtilActionReporter, ShowsNoErrorForWhatTheUserStopped)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.isCancelled = true;
    VtxUtilActionReporter().reportResult(false, "No zone.", "Zone made.");
    VtxUtilActionReporter().reportLastFailure();
    EXPECT_TRUE(host.errors.empty());
    EXPECT_EQ(host.statusMessages.size(), 2U);
}

TEST(AppLock, AndWaitStateAreReleasedWhenAnExceptionPasses)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    try {
        AppLock const lock(false);
        WaitState const wait;
        EXPECT_EQ(host.lockDepth, 1);
        EXPECT_FALSE(host.lastLockRecorded);
        EXPECT_EQ(host.waitDepth, 1);
        throw std::runtime_error("in the middle");
    } catch (std::runtime_error const&) {
    }
    EXPECT_EQ(host.lockDepth, 0);
    EXPECT_EQ(host.waitDepth, 0);
}
