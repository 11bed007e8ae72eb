#include "propertybindings/MxNotationConverter.h"

#include "property/InvalidArgumentException.h"

#include <gtest/gtest.h>

using namespace vantrix::sdk::ui::util;

TEST(MxNotationConverterTest, WritesZeroAndNegativeIndicesRelativeToTheLargest)
{
    EXPECT_EQ(LgIndexToMxNotation(0), "Mx");
    EXPECT_EQ(LgIndexToMxNotation(-1), "Mx-1");
    EXPECT_EQ(LgIndexToMxNotation(-1234567), "Mx-1234567");
    EXPECT_EQ(LgIndexToMxNotation(7), "7");
}

TEST(MxNotationConverterTest, ReadsBothFormsWithBlanksAndInAnyCase)
{
    EXPECT_EQ(MxNotationToLgIndex("mx - 12"), -12);
    EXPECT_EQ(MxNotationToLgIndex("  Mx\t "), 0);
    EXPECT_EQ(MxNotationToLgIndex(""), 0);
    EXPECT_EQ(MxNotationToLgIndex(" - 3 "), -3);
    EXPECT_EQ(MxNotationToLgIndex("42"), 42);
    EXPECT_EQ(MxNotationToLgIndex("9999999999"), 9999999999L);
    EXPECT_THROW(MxNotationToLgIndex("half"), vantrix::InvalidArgumentException);
}

TEST(MxNotationConverterTest, IsValidMeansThatTheTextIsInNeitherForm)
{
    for (char const* const index : {"Mx", " mX - 3 ", "mx-1234567890", "12", " -5 ", "- 5"}) {
        EXPECT_FALSE(isValidMxNotation(index)) << index;
    }
    for (char const* const noIndex : {"", "Mx-12345678901", "12345678901", "M", "Mx+1", "1.5", "Mx-"}) {
        EXPECT_TRUE(isValidMxNotation(noIndex)) << noIndex;
    }
}
