#include "propertybindings/StringConverter.h"

#include "property/InvalidArgumentException.h"

#include <gtest/gtest.h>

using vantrix::InvalidArgumentException;
using vantrix::sdk::ui::dialogs::propertybindings::intern::StringConverter;

namespace {

template<typename T>
T convert(char const* text)
{
    T value{};
    StringConverter(text).convert(value);
    return value;
}

template<typename T>
std::string refusal(char const* text)
{
    try {
        convert<T>(text);
    } catch (InvalidArgumentException const& exception) {
        return exception.message();
    }
    return "";
}

} // namespace

TEST(StringConverterTest, IgnoresWhatFollowsTheNumber)
{
    EXPECT_EQ(convert<int>("5 "), 5);
    EXPECT_EQ(convert<long>("5x"), 5);
    EXPECT_EQ(convert<double>("-2.5e3 m"), -2500.0);
}

TEST(StringConverterTest, NamesTextAndTypeOfWhatItCannotRead)
{
    EXPECT_EQ(refusal<long>("abc"), "Cannot convert \"abc\" to l");
    EXPECT_EQ(refusal<long>(" 5"), "Cannot convert \" 5\" to l");
    EXPECT_EQ(refusal<double>(" 5"), "Cannot convert \" 5\" to d");
    EXPECT_EQ(refusal<int>(""), "Cannot convert \"\" to i");
    EXPECT_EQ(refusal<short>("40000"), "Cannot convert \"40000\" to s");
    EXPECT_EQ(refusal<int>("9999999999"), "Cannot convert \"9999999999\" to i");
}

TEST(StringConverterTest, CopiesAStringAsItIs)
{
    EXPECT_EQ(convert<std::string>("  \xC3\xA4 b "), "  \xC3\xA4 b ");
}
