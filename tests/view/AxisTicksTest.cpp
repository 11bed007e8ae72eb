#include "view/AxisTicks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

using namespace vantrix::view;

namespace {

struct Range
{
    double minimum;
    double maximum;
};

/* The number that a label says. */
double spoken(const NumberText& label)
{
    if (label.exponent.empty()) {
        return std::strtod(label.text.c_str(), nullptr);
    }
    const std::size_t times = label.text.find("\u00d710");
    const std::string mantissa = times != std::string::npos ? label.text.substr(0, times)
                                 : label.text == "10"       ? "1"
                                                            : "-1";
    return std::strtod((mantissa + "e" + label.exponent).c_str(), nullptr);
}

/* As text: "10^-3". */
std::string plain(const NumberText& label)
{
    return label.text + (label.exponent.empty() ? "" : "^" + label.exponent);
}

/* What holds for the ticks of every axis, whatever its range. */
void expectSound(const AxisScale& scale, const TickRequest& request)
{
    const AxisTicks ticks = AxisTicks::make(scale, request);
    SCOPED_TRACE(testing::Message() << scale.minimum() << " to " << scale.maximum()
                                    << (scale.isLogarithmic() ? " log" : "")
                                    << (scale.isReversed() ? " reversed" : ""));
    EXPECT_LE(double(ticks.major.size()), request.length / request.minimumDistance + 1.0);
    for (const auto* set : {&ticks.major, &ticks.minor}) {
        double previous = -std::numeric_limits<double>::infinity();
        for (const Tick& tick : *set) {
            EXPECT_GT(tick.value, previous);
            EXPECT_GE(tick.value, scale.minimum());
            EXPECT_LE(tick.value, scale.maximum());
            EXPECT_NEAR(tick.fraction, scale.fraction(tick.value), 1e-12);
            previous = tick.value;
        }
    }
    for (std::size_t i = 0; i < ticks.major.size(); ++i) {
        EXPECT_EQ(spoken(ticks.major[i].label), ticks.major[i].value) << plain(ticks.major[i].label);
        EXPECT_LE(plain(ticks.major[i].label).size(), 24U) << plain(ticks.major[i].label);
        if (i > 0) {
            EXPECT_NE(ticks.major[i].label, ticks.major[i - 1].label);
            const double distance = std::abs(ticks.major[i].fraction - ticks.major[i - 1].fraction) * request.length;
            EXPECT_GE(distance, request.minimumDistance * (1.0 - 1e-6));
        }
    }
    for (const Tick& minor : ticks.minor) {
        EXPECT_TRUE(minor.label.isEmpty());
        for (const Tick& major : ticks.major) {
            EXPECT_GT(std::abs(minor.value - major.value), 0.0);
        }
    }
}

std::vector<std::string> labels(const AxisScale& scale, const TickRequest& request)
{
    std::vector<std::string> texts;
    for (const Tick& tick : AxisTicks::make(scale, request).major) {
        texts.push_back(plain(tick.label));
    }
    return texts;
}

} // namespace

TEST(AxisTicks, AreSoundOverRangesOfEverySize)
{
    const Range ranges[] = {{0.0, 1.0},        {-1.0, 1.0},        {0.0, 1e-300},      {1e-12, 3e-12},
                            {-7e15, 9e15},     {1e300, 8e300},     {1e9, 1e9 + 1e-3},  {-1e9 - 1e-3, -1e9},
                            {0.1, 0.3},        {99.999, 100.001},  {5.0, 5.0},         {0.0, 0.0},
                            {-1e-320, 1e-320}, {1.0, 1.0 + 1e-15}, {3.0, -2.0},        {1e-5, 1e5},
                            {1.5, 8.5},        {0.002, 0.0021},    {-1.7e308, 1.7e308}};
    for (const Range& range : ranges) {
        for (const bool isLogarithmic : {false, true}) {
            for (const bool isReversed : {false, true}) {
                for (const double length : {15.0, 60.0, 300.0, 2000.0}) {
                    TickRequest request;
                    request.length = length;
                    expectSound(AxisScale(range.minimum, range.maximum, isLogarithmic, isReversed), request);
                }
            }
        }
    }
}

TEST(AxisTicks, AreSoundOverRandomRanges)
{
    std::mt19937 random(20);
    std::uniform_real_distribution<double> exponent(-30.0, 30.0);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    for (int i = 0; i < 3000; ++i) {
        const double start = mantissa(random) * std::pow(10.0, exponent(random));
        const double size = std::abs(start) * std::pow(10.0, exponent(random) / 3.0);
        TickRequest request;
        request.length = 40.0 + 200.0 * (i % 7);
        expectSound(AxisScale(start, start + size, i % 5 == 0, i % 2 == 0), request);
    }
}

TEST(AxisTicks, OfAnOrdinaryRangeAreThoseThatAPersonWouldChoose)
{
    TickRequest request;
    request.length = 100.0;
    request.minimumDistance = 18.0;
    using Texts = std::vector<std::string>;
    EXPECT_EQ(labels(AxisScale(0.0, 1.0), request), (Texts{"0.0", "0.2", "0.4", "0.6", "0.8", "1.0"}));
    EXPECT_EQ(labels(AxisScale(-3.0, 2.1), request), (Texts{"-3", "-2", "-1", "0", "1", "2"}));
    EXPECT_EQ(labels(AxisScale(0.0, 5e-8), request),
              (Texts{"0", "10^-8", "2\u00d710^-8", "3\u00d710^-8", "4\u00d710^-8", "5\u00d710^-8"}));
    EXPECT_EQ(labels(AxisScale(0.1, 100.0, true), request), (Texts{"0.1", "1", "10", "100"}));
    EXPECT_EQ(labels(AxisScale(1e-6, 1.0, true), request), (Texts{"10^-6", "10^-4", "10^-2", "10^0"}));
}

TEST(AxisTicks, GiveWayToLongLabels)
{
    TickRequest request;
    request.length = 300.0;
    request.labelExtent = [](const NumberText& label) { return 9.0 * double(label.text.size()); };
    const AxisTicks ticks = AxisTicks::make(AxisScale(1e9, 1e9 + 1e-3), request);
    ASSERT_GE(ticks.major.size(), 2U);
    for (std::size_t i = 1; i < ticks.major.size(); ++i) {
        const double distance = (ticks.major[i].fraction - ticks.major[i - 1].fraction) * request.length;
        EXPECT_GE(distance, request.labelExtent(ticks.major[i].label));
    }
}

TEST(AxisTicks, FollowASpacingOfOnesOwnUnlessItCrowdsTheAxis)
{
    TickRequest request;
    request.length = 200.0;
    request.spacing = 0.25;
    request.anchor = 0.1;
    EXPECT_EQ(labels(AxisScale(0.0, 1.0), request), (std::vector<std::string>{"0.10", "0.35", "0.60", "0.85"}));
    request.spacing = 1e-6;
    EXPECT_EQ(AxisTicks::make(AxisScale(0.0, 1.0), request).spacing, 0.1);
}

TEST(AxisTicks, WriteNumbersInTheFormatAskedFor)
{
    struct Case
    {
        NumberFormat_e format;
        int precision;
        Range range;
        std::vector<std::string> expected;
    };
    for (const Case& one :
         {Case{NumberFormat_RangeBestFloat, 3, {0, 1}, {"0.0", "0.2", "0.4", "0.6", "0.8", "1.0"}},
          Case{NumberFormat_BestFloat, 3, {0, 1}, {"0", "0.2", "0.4", "0.6", "0.8", "1"}},
          Case{NumberFormat_Integer, 3, {0, 1}, {"0", "1"}},
          Case{NumberFormat_Integer, 3, {-40, 60}, {"-40", "-20", "0", "20", "40", "60"}},
          Case{NumberFormat_FixedFloat, 2, {0, 1}, {"0.00", "0.20", "0.40", "0.60", "0.80", "1.00"}},
          Case{NumberFormat_FixedFloat, 0, {0, 0.5}, {"0"}},
          Case{NumberFormat_Exponential,
               1,
               {0, 1000},
               {"0.0E+00", "2.0E+02", "4.0E+02", "6.0E+02", "8.0E+02", "1.0E+03"}},
          Case{NumberFormat_SuperScript, 1, {0, 0.3}, {"0", "1\u00d710^-1", "2\u00d710^-1", "3\u00d710^-1"}}}) {
        TickRequest request;
        request.length = 100.0;
        request.minimumDistance = 18.0;
        request.number = {one.format, one.precision, {}};
        const AxisScale scale(one.range.minimum, one.range.maximum);
        EXPECT_EQ(labels(scale, request), one.expected);
        EXPECT_FALSE(AxisTicks::make(scale, request).minor.empty()) << one.format;
        request.minorCount = 0;
        EXPECT_TRUE(AxisTicks::make(scale, request).minor.empty()) << one.format;
    }
}

TEST(AxisTicks, OfTimesAreAtWholeSecondsMinutesAndHours)
{
    const double minute = 1.0 / 1440.0;
    struct Case
    {
        Range range;
        const char* format;
        std::vector<std::string> expected;
    };
    for (const Case& one :
         {Case{{45000.0, 45001.0}, "hh:mm", {"00:00", "06:00", "12:00", "18:00", "00:00"}},
          Case{{45000.0, 45000.0 + 2.0 * minute}, "mm:ss", {"00:00", "00:30", "01:00", "01:30", "02:00"}},
          Case{{45000.0, 45040.0},
               "yyyy-mm-dd",
               {"2023-03-15", "2023-03-25", "2023-04-04", "2023-04-14", "2023-04-24"}}}) {
        TickRequest request;
        request.length = 100.0;
        request.minimumDistance = 20.0;
        request.number = {NumberFormat_TimeDate, 3, one.format};
        EXPECT_EQ(labels(AxisScale(one.range.minimum, one.range.maximum), request), one.expected);
    }
}

TEST(AxisTicks, AtASpacingOfOnesOwnAreWrittenShort)
{
    TickRequest request;
    request.length = 400.0;
    request.spacing = 0.5235987755982988;
    const auto texts = labels(AxisScale(0.0, 6.283185307179586), request);
    ASSERT_EQ(texts.size(), 13U);
    EXPECT_EQ(texts[1], "0.52");
    EXPECT_EQ(texts[12], "6.28");
}

TEST(AxisTicks, WithSkippedLabelsStayWhereTheyAre)
{
    TickRequest request;
    request.length = 100.0;
    request.minimumDistance = 18.0;
    request.spacing = 0.1;
    request.skip = 5;
    EXPECT_EQ(labels(AxisScale(0.0, 1.0), request),
              (std::vector<std::string>{"0.0", "", "", "", "", "0.5", "", "", "", "", "1.0"}));
}

TEST(AxisScale, TakesValuesToFractionsAndBack)
{
    for (const bool isLogarithmic : {false, true}) {
        for (const bool isReversed : {false, true}) {
            const AxisScale scale(0.5, 2000.0, isLogarithmic, isReversed);
            EXPECT_NEAR(scale.fraction(0.5), isReversed ? 1.0 : 0.0, 1e-12);
            EXPECT_NEAR(scale.fraction(2000.0), isReversed ? 0.0 : 1.0, 1e-12);
            for (const double fraction : {0.0, 0.1, 0.5, 0.99}) {
                EXPECT_NEAR(scale.fraction(scale.value(fraction)), fraction, 1e-12);
            }
        }
    }
}
