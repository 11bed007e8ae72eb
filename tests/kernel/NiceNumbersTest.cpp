#include "kernel/NiceNumbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace vantrix::kernel {

namespace {

struct Interval
{
    double minimum;
    double maximum;
};

/* Ranges of all magnitudes and offsets, always the same ones. */
std::vector<Interval> manyIntervals()
{
    std::mt19937 random(20);
    std::uniform_real_distribution<double> exponent(-12.0, 12.0);
    std::uniform_real_distribution<double> offset(-50.0, 50.0);
    std::vector<Interval> intervals{{0, 1}, {0, 0.3}, {-1, 1}, {0.1, 0.3}, {-0.7, -0.2}, {99.5, 100.5}, {0, 1e-300}};
    for (int i = 0; i < 2000; ++i) {
        const double length = std::pow(10.0, exponent(random));
        const double minimum = offset(random) * length;
        intervals.push_back({minimum, minimum + length});
    }
    return intervals;
}

/* The smallest of 1, 2 and 5 times a power of ten, each read from its decimal text, that is not below a number. */
double expectedSpacing(double exact)
{
    for (int power = -320; power <= 308; ++power) {
        for (const int factor : {1, 2, 5}) {
            const double spacing = std::strtod((std::to_string(factor) + "e" + std::to_string(power)).c_str(), nullptr);
            if (spacing >= exact * (1.0 - 1e-9)) {
                return spacing;
            }
        }
    }
    return 0.0;
}

/* How many significant digits a number has when it is written as short as it can be. */
std::size_t digits(double number)
{
    for (int precision = 0; precision < 17; ++precision) {
        char text[64];
        std::snprintf(text, sizeof text, "%.*e", precision, number);
        if (std::strtod(text, nullptr) == number) {
            return static_cast<std::size_t>(precision) + 1;
        }
    }
    return 18;
}

} // namespace

TEST(NiceNumbersTest, RangesEndAtTheMultiplesThatEncloseTheNumbersClosest)
{
    for (const Interval& each : manyIntervals()) {
        SCOPED_TRACE(testing::Message() << each.minimum << " to " << each.maximum);
        const double spacing = expectedSpacing((each.maximum - each.minimum) / 5);
        const NiceRange nice = niceRange(each.minimum, each.maximum);
        const double slack = spacing * 1e-7;
        ASSERT_NEAR(nice.spacing, spacing, slack);
        EXPECT_LE(nice.minimum, each.minimum + slack);
        EXPECT_GE(nice.maximum, each.maximum - slack);
        EXPECT_GT(nice.minimum + spacing, each.minimum) << "a shorter range would do";
        EXPECT_LT(nice.maximum - spacing, each.maximum) << "a shorter range would do";
        EXPECT_NEAR(std::remainder(nice.minimum, spacing), 0.0, slack);
        EXPECT_NEAR(std::remainder(nice.maximum, spacing), 0.0, slack);
    }
}

TEST(NiceNumbersTest, NiceNumbersAreWrittenWithFewDigits)
{
    for (const Interval& each : manyIntervals()) {
        if (each.maximum - each.minimum < 1e-15) {
            continue; // nearer to the smallest number there is than digits can tell
        }
        const NiceRange nice = niceRange(each.minimum, each.maximum);
        EXPECT_LE(digits(nice.minimum), 4U) << nice.minimum;
        EXPECT_LE(digits(nice.maximum), 4U) << nice.maximum;
        double value = nice.minimum;
        for (int step = 0; step < 7; ++step) {
            value = nextNiceValue(value, nice.spacing, true);
            EXPECT_LE(digits(value), 4U) << value;
        }
    }
}

TEST(NiceNumbersTest, OneNumberAloneGetsARangeAroundIt)
{
    for (const double value : {0.0, 1.0, -3.7, 1e-9, 4e12}) {
        const NiceRange nice = niceRange(value, value);
        EXPECT_LT(nice.minimum, value);
        EXPECT_GT(nice.maximum, value);
    }
}

TEST(NiceNumbersTest, LogarithmicRangesEndAtPowersOfTen)
{
    struct Case
    {
        double minimum, maximum, niceMinimum, niceMaximum;
    };
    for (const Case& each : {Case{2, 30, 1, 100}, Case{1, 100, 1, 100}, Case{0.02, 0.03, 0.01, 0.1},
                             Case{10, 10, 10, 100}, Case{1e-12, 3e7, 1e-12, 1e8}, Case{999, 1001, 100, 10000}}) {
        const NiceRange nice = niceDecades(each.minimum, each.maximum);
        EXPECT_DOUBLE_EQ(nice.minimum, each.niceMinimum) << each.minimum << " to " << each.maximum;
        EXPECT_DOUBLE_EQ(nice.maximum, each.niceMaximum) << each.minimum << " to " << each.maximum;
    }
}

TEST(NiceNumbersTest, StepsGoToTheNextNiceNumberFromAnywhere)
{
    struct Case
    {
        double value, spacing, up, down;
    };
    for (const Case& each : {Case{0, 0.1, 0.1, -0.1}, Case{0.25, 0.1, 0.3, 0.2}, Case{0.3, 0.1, 0.4, 0.2},
                             Case{-0.05, 0.1, 0, -0.1}, Case{97, 5, 100, 95}, Case{1e6 + 1, 2e5, 1.2e6, 1e6}}) {
        EXPECT_DOUBLE_EQ(nextNiceValue(each.value, each.spacing, true), each.up) << each.value;
        EXPECT_DOUBLE_EQ(nextNiceValue(each.value, each.spacing, false), each.down) << each.value;
    }
    struct Factor
    {
        double value, up, down;
    };
    for (const Factor& each : {Factor{1, 2, 0.5}, Factor{0.3, 0.5, 0.2}, Factor{5e-7, 1e-6, 2e-7}, Factor{99, 100, 50},
                               Factor{1000, 2000, 500}, Factor{3e11, 5e11, 2e11}}) {
        EXPECT_DOUBLE_EQ(nextNiceFactor(each.value, true), each.up) << each.value;
        EXPECT_DOUBLE_EQ(nextNiceFactor(each.value, false), each.down) << each.value;
    }
}

} // namespace vantrix::kernel
