#include "toolbox/StrUtil.h"

#include <gtest/gtest.h>

#include <limits>

using vantrix::toolbox::StrUtil;

TEST(StrUtil, MakesLettersUpperCaseAndLeavesOtherBytes)
{
    EXPECT_EQ(StrUtil::toUpper("mx - 2z\xc3\xa4"), "MX - 2Z\xc3\xa4");
}

TEST(StrUtil, ScansAnIndexOfSignAndDigitsOnly)
{
    struct Case
    {
        char const* text;
        bool ok;
        long index;
    };
    for (Case const& c :
         {Case{"12", true, 12}, Case{"+12", true, 12}, Case{"-3", true, -3}, Case{"007", true, 7},
          Case{"9223372036854775807", true, std::numeric_limits<long>::max()}, Case{"9223372036854775808", false, 0},
          Case{"", false, 0}, Case{"+", false, 0}, Case{"-", false, 0}, Case{"+-3", false, 0}, Case{"1.5", false, 0},
          Case{" 1", false, 0}, Case{"1 ", false, 0}, Case{"0x10", false, 0}}) {
        long index = 0;
        EXPECT_EQ(StrUtil::scanForLgIndex(c.text, index), c.ok) << c.text;
        EXPECT_EQ(index, c.index) << c.text;
    }
}
