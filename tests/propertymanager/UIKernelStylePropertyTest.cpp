#include "propertymanager/UIKernelStyleProperty.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

using namespace vantrix;
using namespace vantrix::sdk::ui::propertymanager;
using test::RecordingHost;
using testing::IsEmpty;

namespace {

RecordingHost& preparedHost()
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.define({"Count"}, 5L);
    host.put({"Count"}, 6L, 2);
    return host;
}

class UIKernelStylePropertyTest : public testing::Test
{
protected:
    auto listener()
    {
        return [this](int const& value) { heard.push_back(value); };
    }

    RecordingHost& host = preparedHost();
    toolbox::StyleValue const path{"Count"};
    std::vector<int> heard;
};

} // namespace

TEST_F(UIKernelStylePropertyTest, StartsWithTheValueOfTheObjectItAddresses)
{
    EXPECT_EQ(UIKernelStyleProperty<int>(false, path).value(), 5);
    int const readsBefore = host.reads;
    UIKernelStyleProperty<int> const addressed(false, path, 2, -1);
    EXPECT_EQ(host.reads, readsBefore + 1);
    EXPECT_EQ(addressed.value(), 6);
}

TEST_F(UIKernelStylePropertyTest, WithoutListenersNeverListensToTheHost)
{
    UIKernelStyleProperty<int> property(false, path);
    int const readsBefore = host.reads;
    host.change({"Count"}, 7L);
    EXPECT_EQ(host.reads, readsBefore);

    boost::signals2::connection const connection = property.connectToValueChangedSignal(listener());
    EXPECT_THAT(heard, IsEmpty());
    host.change({"Count"}, 8L);
    EXPECT_THAT(heard, testing::ElementsAre(8));

    // The first change afterwards ends the relay, the second the kernel property's listening.
    connection.disconnect();
    host.change({"Count"}, 9L);
    host.change({"Count"}, 10L);
    int const readsAfter = host.reads;
    host.change({"Count"}, 11L);
    EXPECT_EQ(host.reads, readsAfter);
}

TEST_F(UIKernelStylePropertyTest, WritesThroughAtOnceAndThrowsWhatTheHostSays)
{
    UIKernelStyleProperty<int> property(false, path);
    property.connectToValueChangedSignal(listener());
    property.setValue(9);
    EXPECT_EQ(std::get<long>(host.get({"Count"})), 9);
    EXPECT_EQ(host.writes, 1);
    EXPECT_THAT(heard, testing::ElementsAre(9));

    heard.clear();
    host.nextWriteCode = SetValueReturnCode_OutOfRange;
    EXPECT_THROW(property.setValue(10), InvalidPropertyValueException);
    EXPECT_EQ(property.value(), 9);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(UIKernelStylePropertyTest, DeferredShowsTheEditAndWritesItWhenApplied)
{
    UIKernelStyleProperty<int> property(true, path);
    property.setValue(9);
    EXPECT_EQ(property.value(), 9);
    EXPECT_EQ(std::get<long>(host.get({"Count"})), 5);
    property.apply();
    EXPECT_EQ(std::get<long>(host.get({"Count"})), 9);
    EXPECT_THROW(UIKernelStyleProperty<int>(false, path).apply(), std::logic_error);
}
