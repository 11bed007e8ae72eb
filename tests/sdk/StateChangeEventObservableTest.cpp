#include "sdk/StateChangeEventObservable.h"
#include "support/RecordingHost.h"
#include "toolbox/CheckedStyleValue.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using vantrix::sdk::integration::StateChangeEventObservable;
using vantrix::test::RecordingHost;
using vantrix::toolbox::StateChangeEventInterface;

TEST(StateChangeEventObservable, HandsOverKindPathAndObject)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.define({"Axis", "Min"}, 0.5);
    std::vector<std::string> heard;
    boost::signals2::scoped_connection const connection =
        StateChangeEventObservable::getInstance().connect([&heard](StateChangeEventInterface const& event) {
            heard.push_back(std::to_string(event.kind()) + event.styleParam(1) + event.styleParam(2) +
                            event.styleParam(3) + std::to_string(event.object()));
        });
    host.change({"Axis", "Min"}, 1.0);
    host.notify(StateChange_Text, 12);
    EXPECT_THAT(heard, ElementsAre("7AxisMin0", "3512"));
}

TEST(StateChangeEventObservable, ReachesEverySlotThoughOneThrows)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    int calls = 0;
    StateChangeEventObservable& observable = StateChangeEventObservable::getInstance();
    boost::signals2::scoped_connection const broken =
        observable.connect([](StateChangeEventInterface const&) { throw std::runtime_error("broken slot"); });
    boost::signals2::scoped_connection const behind =
        observable.connect([&calls](StateChangeEventInterface const&) { ++calls; });
    host.notify(StateChange_View);
    EXPECT_EQ(calls, 1);
    EXPECT_THAT(host.statusMessages, ElementsAre("broken slot"));
}

TEST(StateChangeEventObservable, ASlotOfOneEntryHearsOnlyWhatCanChangeItsValue)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.define({"Axis", "Min"}, 0.5);
    host.define({"Axis", "Max"}, 1.5);
    std::vector<std::string> heard;
    StateChangeEventObservable& observable = StateChangeEventObservable::getInstance();
    vantrix::toolbox::CheckedStyleValue const minimum{vantrix::toolbox::StyleValue("Axis", "Min")};
    boost::signals2::scoped_connection const every = observable.connect(
        [&heard](StateChangeEventInterface const& event) { heard.push_back("every " + event.styleParam(2)); });
    boost::signals2::scoped_connection const ofMinimum =
        observable.connectToStyleEntry(minimum.entry(), [&heard](StateChangeEventInterface const& event) {
            heard.push_back("own " + event.styleParam(2));
        });
    host.change({"Axis", "Max"}, 2.0);
    host.change({"Axis", "Min"}, 1.0);
    host.notify(StateChange_View);
    EXPECT_THAT(heard, ElementsAre("every Max", "own Min", "every Min", "own ", "every "));
}
