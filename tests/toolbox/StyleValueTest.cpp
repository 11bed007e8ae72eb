#include "property/InvalidArgumentException.h"
#include "support/RecordingHost.h"
#include "toolbox/CheckedStyleValue.h"
#include "toolbox/Set.h"

#include <gmock/gmock.h>

using namespace vantrix::toolbox;
using vantrix::InvalidArgumentException;
using vantrix::test::RecordingHost;

namespace {

class StyleValueTest : public testing::Test
{
protected:
    StyleValueTest()
    {
        host.reset();
        host.define({"Axis", "Min"}, 0.5);
        host.define({"Axis", "Title"}, std::string("X"));
        host.define({"Axis", "Show"}, 1L);
    }

    RecordingHost& host = RecordingHost::instance();
};

} // namespace

TEST_F(StyleValueTest, ReadsAndWritesEachTypeAtItsOffsets)
{
    double number = 0.0;
    std::string text;
    bool flag = false;
    StyleValue const minimum("Axis", "Min");
    EXPECT_EQ(minimum.getValue(&number, 2), GetValueReturnCode_Ok);
    EXPECT_EQ(number, 0.5);
    EXPECT_EQ(minimum.setValue(3.25, 2), SetValueReturnCode_Ok);
    EXPECT_EQ(std::get<double>(host.get({"Axis", "Min"}, 2)), 3.25);
    EXPECT_EQ(std::get<double>(host.get({"Axis", "Min"}, 1)), 0.5);

    EXPECT_EQ(StyleValue("Axis", "Title").setValue(std::string("Radius")), SetValueReturnCode_Ok);
    EXPECT_EQ(StyleValue("Axis", "Title").getValue(&text), GetValueReturnCode_Ok);
    EXPECT_EQ(text, "Radius");
    EXPECT_EQ(StyleValue("Axis", "Show").getValue(&flag), GetValueReturnCode_Ok);
    EXPECT_TRUE(flag);
}

TEST_F(StyleValueTest, LeavesTheValueWhenTheHostDoesNotAnswer)
{
    double number = 7.0;
    EXPECT_EQ(StyleValue("Axis", "Maximum").getValue(&number), GetValueReturnCode_UnknownPath);
    EXPECT_EQ(StyleValue("Axis", "Show").getValue(&number), GetValueReturnCode_WrongType);
    EXPECT_EQ(number, 7.0);
}

TEST_F(StyleValueTest, WritesToASetOfObjectsWhenGivenOne)
{
    StyleValue const show("Axis", "Show");
    CheckedStyleValue const checked(show);
    ArgList arguments;
    Set const zones(std::set<int>{1, 2});
    StyleValue::setupSetValueArgList(checked.macroIDs(), &zones, -1, -1, AssignOp_Equals, arguments);
    EXPECT_EQ(StyleValue::setFinalValue(false, arguments), SetValueReturnCode_Ok);
    EXPECT_THAT(host.lastWriteArguments,
                testing::ElementsAre("AssignOp", "Entry", "IValue", "ObjectSet", "Offset1", "Offset2"));
}

TEST_F(StyleValueTest, HasOneToSevenNames)
{
    EXPECT_THROW(StyleValue(StringList{}), InvalidArgumentException);
    EXPECT_NO_THROW(StyleValue("1", "2", "3", "4", "5", "6", "7"));
    EXPECT_THROW(StyleValue(StringList{"1", "2", "3", "4", "5", "6", "7"} + "8"), InvalidArgumentException);
}
