#include "KernelFixture.h"

#include "toolbox/HostString.h"

#include <cmath>
#include <limits>

namespace vantrix::kernel {

namespace {

using AxisLabelsTest = KernelTest;

std::string timeDate(double days, const char* format)
{
    char* text = nullptr;
    return VtxUtilStringFormatTimeDate(days, format, &text) ? toolbox::takeHostString(text) : "none";
}

} // namespace

TEST_F(AxisLabelsTest, TimesAndDatesFollowTheirFormat)
{
    struct Case
    {
        double days;
        const char* format;
        const char* expected;
    };
    // 2024-02-29 is 45351 days after 1899-12-30, a Thursday.
    const double leapDay = 45351.0;
    const double afternoon = leapDay + (15.0 + 4.0 / 60.0 + 9.0 / 3600.0) / 24.0;
    for (const Case& one : {Case{0.0, "yyyy-mm-dd", "1899-12-30"},
                            {1.0, "d.m.yy", "31.12.99"},
                            {leapDay, "yyyy-mm-dd", "2024-02-29"},
                            {leapDay + 1.0, "dddd, d mmmm yyyy", "Friday, 1 March 2024"},
                            {leapDay, "ddd dd mmm yy", "Thu 29 Feb 24"},
                            {afternoon, "hh:mm:ss", "15:04:09"},
                            {afternoon, "h:mm AM/PM", "3:04 PM"},
                            {afternoon, "mm:ss", "04:09"},
                            {afternoon, "yyyy-mm-dd hh:mm", "2024-02-29 15:04"},
                            {afternoon, "h\\h m\\m\\i\\n", "15h 4min"},
                            {leapDay, "hh AM/PM", "12 AM"},
                            {leapDay + 0.5, "h AM/PM", "12 PM"},
                            {leapDay + 13.0 / 24.0 - 1e-12, "hh:mm", "13:00"},
                            {-0.25, "yyyy-mm-dd hh", "1899-12-29 18"},
                            {leapDay, "", ""},
                            {leapDay, "Q1 x", "Q1 x"},
                            {leapDay, "\\", "\\"},
                            {leapDay, "y", "y"}}) {
        EXPECT_EQ(timeDate(one.days, one.format), one.expected) << one.format << " of " << one.days;
    }
}

TEST_F(AxisLabelsTest, NumbersThatAreNoDatesAreRefused)
{
    for (const double days : {1e7, -1e6, 1e300, std::nan(""), std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(timeDate(days, "yyyy"), "none") << days;
    }
    EXPECT_EQ(timeDate(2958465.0, "yyyy-mm-dd"), "9999-12-31");
    EXPECT_EQ(timeDate(2958466.0, "yyyy-mm-dd"), "none");
    EXPECT_EQ(timeDate(-693593.0, "yyyy-mm-dd"), "0001-01-01");
    EXPECT_EQ(timeDate(-693594.0, "yyyy-mm-dd"), "none");
}

TEST_F(AxisLabelsTest, FormatsAreThoseOfTheNamedAxis)
{
    show("lines");
    set("XYLineAxis/YDetail/TickLabel/NumFormat/Formatting", long{NumberFormat_TimeDate}, 3);
    set("XYLineAxis/YDetail/TickLabel/NumFormat/TimeDateFormat", std::string("hh:mm"), 3);
    EXPECT_EQ(VtxUtilAxisLabelGetNumberFormat('Y', 3), NumberFormat_TimeDate);
    EXPECT_NE(VtxUtilAxisLabelGetNumberFormat('Y', 1), NumberFormat_TimeDate);
    char* format = nullptr;
    ASSERT_TRUE(VtxUtilAxisLabelGetTimeDateFormat('Y', 3, &format));
    EXPECT_EQ(toolbox::takeHostString(format), "hh:mm");
    for (const auto& [axis, number] : {std::pair('Z', 1), {'T', 1}, {'X', 0}, {'X', 6}, {'\0', 1}}) {
        EXPECT_EQ(VtxUtilAxisLabelGetNumberFormat(axis, number), NumberFormat_BestFloat) << axis << number;
        EXPECT_FALSE(VtxUtilAxisLabelGetTimeDateFormat(axis, number, &format)) << axis << number;
    }
}

} // namespace vantrix::kernel
