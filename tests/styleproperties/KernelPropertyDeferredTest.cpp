#include "styleproperties/KernelPropertyDeferred.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

using namespace vantrix;
using sdk::styleproperties::KernelPropertyDeferred;
using test::RecordingHost;
using testing::ElementsAre;

namespace {

RecordingHost& hostWithCount()
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.define({"Count"}, 5L);
    host.put({"Count"}, 6L, 2);
    return host;
}

class KernelPropertyDeferredTest : public testing::Test
{
protected:
    RecordingHost& host = hostWithCount();
    KernelPropertyDeferred<int> count{toolbox::StyleValue("Count")};
    std::vector<int> heard;
    boost::signals2::scoped_connection listener =
        count.connectToValueChangedSignal([this](int const& value) { heard.push_back(value); });
};

} // namespace

TEST_F(KernelPropertyDeferredTest, WritesOnlyWhenApplied)
{
    count.setValue(9);
    EXPECT_EQ(count.value(), 9);
    EXPECT_THAT(heard, ElementsAre(9));
    EXPECT_EQ(host.writes, 0);
    count.apply();
    EXPECT_EQ(std::get<long>(host.get({"Count"})), 9);
    count.apply();
    EXPECT_EQ(host.writes, 1);
}

TEST_F(KernelPropertyDeferredTest, AppliedWithTheValueThatTheHostHasWritesNothing)
{
    count.setValue(9);
    host.put({"Count"}, 9L);
    count.apply();
    EXPECT_EQ(host.writes, 0);
}

TEST_F(KernelPropertyDeferredTest, LosesTheEditWhenItIsAimedAtAnotherObject)
{
    count.setValue(9);
    count.setOffsets(2, -1);
    EXPECT_EQ(count.value(), 6);
    EXPECT_THAT(heard, ElementsAre(9, 6));
    count.apply();
    EXPECT_EQ(host.writes, 0);
}

TEST_F(KernelPropertyDeferredTest, KeepsTheEditWhenTheHostRefusesIt)
{
    count.setValue(9);
    host.nextWriteCode = SetValueReturnCode_OutOfRange;
    EXPECT_THROW(count.apply(), InvalidPropertyValueException);
    EXPECT_EQ(count.value(), 9);
}
