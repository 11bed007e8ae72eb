#include "styleproperties/KernelProperty.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

using namespace vantrix;
using sdk::styleproperties::KernelProperty;
using test::RecordingHost;
using testing::ElementsAre;

namespace {

template<typename T>
void expectRoundTrip(RecordingHost::Value const& initial, T const& first, T const& second,
                     RecordingHost::Value const& stored)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.define({"Value"}, initial);
    KernelProperty<T> property(toolbox::StyleValue("Value"));
    EXPECT_EQ(property.value(), first);
    property.setValue(second);
    EXPECT_EQ(property.value(), second);
    EXPECT_EQ(host.get({"Value"}), stored);
}

} // namespace

TEST(KernelPropertyTypes, EachTypeIsReadAndWrittenInItsForm)
{
    expectRoundTrip<bool>(1L, true, false, 0L);
    expectRoundTrip<int>(-3L, -3, 4, 4L);
    expectRoundTrip<long>(5'000'000'000L, 5'000'000'000L, 1L, 1L);
    expectRoundTrip<double>(0.25, 0.25, -1e300, -1e300);
    expectRoundTrip<std::string>(std::string("a"), "a", "", std::string());
    expectRoundTrip<LinePattern_e>(4L, LinePattern_LongDash, LinePattern_Solid, 0L);
}

TEST(KernelPropertyTypes, IntegersAndEnumerationsAreHandedOverAsBothNumbers)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.define({"Value"}, 0L);
    KernelProperty<Font_e>(toolbox::StyleValue("Value")).setValue(Font_Times);
    EXPECT_THAT(host.lastWriteArguments, ElementsAre("AssignOp", "DValue", "Entry", "IValue", "Offset1", "Offset2"));
}
