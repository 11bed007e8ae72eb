#include "styleproperties/KernelProperty.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

using namespace vantrix;
using sdk::styleproperties::KernelProperty;
using test::RecordingHost;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

RecordingHost& hostWithAxes()
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.define({"Axis", "Min"}, 0.5);
    host.define({"Axis", "Max"}, 1.0);
    host.put({"Axis", "Min"}, 10.0, 1);
    host.put({"Axis", "Min"}, 20.0, 2);
    return host;
}

class KernelPropertyTest : public testing::Test
{
protected:
    boost::signals2::connection listen()
    {
        return minimum.connectToValueChangedSignal([this](double const& value) { heard.push_back(value); });
    }

    void changeMinimum(double value, long axis = -1) { host.change({"Axis", "Min"}, value, axis); }

    RecordingHost& host = hostWithAxes();
    KernelProperty<double> minimum{toolbox::StyleValue("Axis", "Min")};
    std::vector<double> heard;
};

} // namespace

TEST_F(KernelPropertyTest, ReadsWithoutOffsetsUntilItIsAimedAtAnObject)
{
    EXPECT_EQ(minimum.value(), 0.5);
    minimum.setOffsets(2, -1);
    EXPECT_EQ(minimum.value(), 20.0);
    EXPECT_EQ(KernelProperty<double>(toolbox::StyleValue("Axis", "Min"), 1).value(), 10.0);
}

TEST_F(KernelPropertyTest, WritesUnderTheLockToTheObjectItIsAimedAt)
{
    minimum.setOffsets(2, -1);
    minimum.setValue(21.0);
    EXPECT_EQ(std::get<double>(host.get({"Axis", "Min"}, 2)), 21.0);
    EXPECT_EQ(std::get<double>(host.get({"Axis", "Min"}, 1)), 10.0);
    EXPECT_EQ(host.writesWithoutLock, 0);
    EXPECT_EQ(host.lockDepth, 0);
}

TEST_F(KernelPropertyTest, SkipsASetOnlyWhenTheHostHasTheValueWhateverTheCacheSays)
{
    minimum.setValue(0.5);
    EXPECT_EQ(host.writes, 0);
    host.put({"Axis", "Min"}, 3.0);
    minimum.setValue(3.0);
    EXPECT_EQ(host.writes, 0);
    minimum.setValue(0.5);
    EXPECT_EQ(host.writes, 1);
}

TEST_F(KernelPropertyTest, GivesTheLastValueWhenTheHostCannotAnswer)
{
    listen();
    minimum.setValue(4.0);
    heard.clear();
    host.failReads = true;
    changeMinimum(5.0);
    EXPECT_EQ(minimum.value(), 4.0);
    EXPECT_THAT(heard, IsEmpty());
    host.failReads = false;
    EXPECT_EQ(minimum.value(), 5.0);
    EXPECT_THAT(heard, ElementsAre(5.0));

    host.failReads = true;
    EXPECT_EQ(KernelProperty<double>(toolbox::StyleValue("Axis", "Min")).value(), 0.0);
    EXPECT_EQ(KernelProperty<double>(toolbox::StyleValue("No", "Such")).value(), 0.0);
}

TEST_F(KernelPropertyTest, ThrowsTheHostsTextWhenAWriteFailsAndKeepsTheValue)
{
    listen();
    host.nextWriteCode = SetValueReturnCode_OutOfRange;
    try {
        minimum.setValue(4.0);
        FAIL() << "the write went through";
    } catch (InvalidPropertyValueException const& exception) {
        EXPECT_EQ(exception.message(), "The host refused the value.");
    }
    EXPECT_EQ(minimum.value(), 0.5);
    EXPECT_EQ(std::get<double>(host.get({"Axis", "Min"})), 0.5);
    EXPECT_THAT(heard, IsEmpty());

    host.nextWriteCode = SetValueReturnCode_Refused;
    host.hasErrorText = false;
    try {
        minimum.setValue(4.0);
        FAIL() << "the write went through";
    } catch (InvalidPropertyValueException const& exception) {
        EXPECT_EQ(exception.message(), "Unknown error");
    }
}

TEST_F(KernelPropertyTest, AfterAnAdjustedWriteShowsWhatTheHostKeptAndWritesTheNextSetAnyhow)
{
    listen();
    host.nextWriteCode = SetValueReturnCode_Adjusted;
    host.adjustedValue = 4.5;
    minimum.setValue(4.0);
    EXPECT_EQ(minimum.value(), 4.5);
    EXPECT_EQ(heard.back(), 4.5);
    EXPECT_EQ(host.writes, 1);

    minimum.setValue(4.5);
    EXPECT_EQ(host.writes, 2);
    minimum.setValue(4.5);
    EXPECT_EQ(host.writes, 2);
}

TEST_F(KernelPropertyTest, ShowsWhatTheHostKeptThoughItDoesNotNotify)
{
    host.notifyOnWrite = false;
    host.nextWriteCode = SetValueReturnCode_Adjusted;
    host.adjustedValue = 0.5;
    minimum.setValue(4.0);
    EXPECT_EQ(minimum.value(), 0.5);
}

TEST_F(KernelPropertyTest, RefreshesSilentlyForTheFirstListenerOnly)
{
    host.put({"Axis", "Min"}, 7.0);
    boost::signals2::scoped_connection const first = listen();
    EXPECT_THAT(heard, IsEmpty());
    host.put({"Axis", "Min"}, 8.0);
    boost::signals2::scoped_connection const second = listen();
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_EQ(minimum.value(), 8.0);
    EXPECT_THAT(heard, ElementsAre(8.0, 8.0));
}

TEST_F(KernelPropertyTest, FollowsTheHostWhileSomebodyListens)
{
    int const readsBefore = host.reads;
    changeMinimum(1.0);
    EXPECT_EQ(host.reads, readsBefore);

    boost::signals2::connection const connection = listen();
    changeMinimum(2.0);
    changeMinimum(2.0);
    EXPECT_THAT(heard, ElementsAre(2.0));

    connection.disconnect();
    int const readsWhileListening = host.reads;
    changeMinimum(3.0);
    changeMinimum(4.0);
    EXPECT_EQ(host.reads, readsWhileListening);
    EXPECT_EQ(minimum.value(), 4.0);
}

TEST_F(KernelPropertyTest, LetsGoOfTheHostWhenTheApplicationEnds)
{
    listen();
    host.notify(StateChange_Quit);
    changeMinimum(2.0);
    EXPECT_THAT(heard, IsEmpty());
    listen();
    changeMinimum(3.0);
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(KernelPropertyTest, AsksTheHostOnlyWhenItsValueMayHaveChanged)
{
    listen();
    int const readsBefore = host.reads;
    host.change({"Axis", "Max"}, 2.0);
    host.notify(StateChange_View);
    EXPECT_EQ(minimum.value(), 0.5);
    EXPECT_EQ(host.reads, readsBefore);
    changeMinimum(3.0, 1);
    EXPECT_EQ(host.reads, readsBefore + 1);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(KernelPropertyTest, SignalsWhenTheNextObjectHasAnotherValue)
{
    listen();
    minimum.setOffsets(1, -1);
    host.put({"Axis", "Min"}, 10.0, 3);
    minimum.setOffsets(3, -1);
    EXPECT_THAT(heard, ElementsAre(10.0));
}

TEST_F(KernelPropertyTest, CanBeLetGoByItsListenerDuringAStateChange)
{
    auto other = boost::make_shared<KernelProperty<double>>(toolbox::StyleValue("Axis", "Min"));
    bool heardOther = false;
    minimum.connectToValueChangedSignal([&other](double const&) { other.reset(); });
    other->connectToValueChangedSignal([&heardOther](double const&) { heardOther = true; });
    changeMinimum(2.0);
    EXPECT_FALSE(other);
    EXPECT_FALSE(heardOther);
}
