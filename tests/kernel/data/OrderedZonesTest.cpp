#include "kernel/OrderedZones.h"
#include "kernel/DataError.h"

#include <gtest/gtest.h>
#include <vtkDoubleArray.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

using namespace vantrix::kernel;

namespace {

double at(const Zone& zone, long variable, long i, long j, long k)
{
    const auto [iMax, jMax, kMax] = zone.dimensions();
    return zone.fields[static_cast<std::size_t>(variable - 1)].values->GetComponent((k * jMax + j) * iMax + i, 0);
}

std::string refusal(const std::function<void()>& action)
{
    try {
        action();
    } catch (const DataError& error) {
        return error.what();
    }
    return "nothing was refused";
}

} // namespace

TEST(OrderedZones, CircularZoneRunsFromTheCentreOutwardsAndAround)
{
    const CircularZone circle{4, 9, 3, 10.0, -20.0, 6.0, 1.0, 5.0, FieldDataType_Double};
    const Zone zone = makeZone(circle, 4, {2, 3, 4});

    ASSERT_EQ(zone.dimensions(), (std::array<long, 3>{4, 9, 3}));
    for (long k = 0; k < 3; ++k) {
        for (long j = 0; j < 9; ++j) {
            for (long i = 0; i < 4; ++i) {
                const double radius = 2.0 * static_cast<double>(i),
                             angle = std::numbers::pi / 4.0 * static_cast<double>(j);
                EXPECT_NEAR(at(zone, 2, i, j, k), 10.0 + radius * std::cos(angle), 1e-12);
                EXPECT_NEAR(at(zone, 3, i, j, k), -20.0 + radius * std::sin(angle), 1e-12);
                EXPECT_NEAR(at(zone, 4, i, j, k), 1.0 + 2.0 * static_cast<double>(k), 1e-12);
                EXPECT_EQ(at(zone, 1, i, j, k), 0.0);
            }
        }
        for (long i = 0; i < 4; ++i) {
            EXPECT_EQ(at(zone, 2, i, 8, k), at(zone, 2, i, 0, k)) << "the seam is open";
            EXPECT_EQ(at(zone, 3, i, 8, k), at(zone, 3, i, 0, k)) << "the seam is open";
        }
    }
}

TEST(OrderedZones, CanBeStoppedWhileTheyAreFilled)
{
    const RectangularZone box{1000, 1000, 10, 0, 0, 0, 1, 1, 1};
    std::vector<double> told;
    const auto stopAt = [&](double fraction) {
        return [&told, fraction](double done) {
            told.push_back(done);
            return done < fraction;
        };
    };
    makeZone(box, 3, {1, 2, 3}, stopAt(1.0));
    ASSERT_GE(told.size(), 6U);
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_GT(told.back(), 0.7);
    told.clear();
    EXPECT_THROW(makeZone(box, 3, {1, 2, 3}, stopAt(0.5)), ActionCancelled);
    EXPECT_GE(told.back(), 0.5);
    EXPECT_LT(told.back(), 0.7);
}

TEST(OrderedZones, RectangularZoneIsEvenlySpacedAndMayRunBackwards)
{
    const RectangularZone box{3, 2, 1, 5.0, 0.0, 7.0, 1.0, 4.0, 9.0, FieldDataType_Float};
    const Zone zone = makeZone(box, 3, {1, 2, 3});

    EXPECT_EQ(at(zone, 1, 0, 1, 0), 5.0);
    EXPECT_EQ(at(zone, 1, 1, 0, 0), 3.0);
    EXPECT_EQ(at(zone, 1, 2, 1, 0), 1.0);
    EXPECT_EQ(at(zone, 2, 2, 0, 0), 0.0);
    EXPECT_EQ(at(zone, 2, 0, 1, 0), 4.0);
    EXPECT_EQ(at(zone, 3, 2, 1, 0), 7.0);
    EXPECT_STREQ(zone.fields[0].values->GetClassName(), "vtkFloatArray");
}

TEST(OrderedZones, SpacingSurvivesTheLargestNumbers)
{
    constexpr double huge = std::numeric_limits<double>::max();
    const Zone zone = makeZone(RectangularZone{3, 1, 1, -huge, 0, 0, huge, 0, 0, FieldDataType_Double}, 1, {1, 0, 0});
    EXPECT_EQ(at(zone, 1, 0, 0, 0), -huge);
    EXPECT_EQ(at(zone, 1, 1, 0, 0), 0.0);
    EXPECT_EQ(at(zone, 1, 2, 0, 0), huge);
}

TEST(OrderedZones, VariablesThatAreNoCoordinatesShareOneArrayOfZeros)
{
    const Zone zone = makeZone(RectangularZone{2, 2, 1, 0, 0, 0, 1, 1, 1}, 5, {1, 2, 0});
    EXPECT_EQ(zone.fields[2].values, zone.fields[4].values);
    EXPECT_EQ(zone.fields[4].values->GetRange(0)[1], 0.0);
}

TEST(OrderedZones, WhatCannotBeMadeIsRefusedWithTheReason)
{
    const double nan = std::nan("");
    constexpr long big = 2147483647;
    const CoordinateVariables xyz{1, 2, 3};
    struct Case
    {
        const char* expected;
        std::function<void()> action;
    };
    const Case cases[] = {
        {"I dimension",
         [&] {
             makeZone(CircularZone{1, 4, 1, 0, 0, 1, 0, 0}, 3, xyz);
         }},
        {"J dimension",
         [&] {
             makeZone(CircularZone{2, 1, 1, 0, 0, 1, 0, 0}, 3, xyz);
         }},
        {"K dimension",
         [&] {
             makeZone(CircularZone{2, 4, 0, 0, 0, 1, 0, 0}, 3, xyz);
         }},
        {"radius must be",
         [&] {
             makeZone(CircularZone{2, 4, 1, 0, 0, 0, 0, 0}, 3, xyz);
         }},
        {"radius",
         [&] {
             makeZone(CircularZone{2, 4, 1, 0, 0, 1e39, 0, 0}, 3, xyz);
         }},
        {"X origin",
         [&] {
             makeZone(CircularZone{2, 4, 1, nan, 0, 1, 0, 0}, 3, xyz);
         }},
        {"edge",
         [&] {
             makeZone(CircularZone{2, 4, 1, 3e38, 0, 3e38, 0, 0}, 3, xyz);
         }},
        {"I dimension",
         [&] {
             makeZone(RectangularZone{big + 1, 1, 1, 0, 0, 0, 1, 1, 1}, 3, xyz);
         }},
        {"index values",
         [&] {
             makeZone(RectangularZone{big, big, 1, 0, 0, 0, 1, 1, 1}, 3, xyz);
         }},
        {"index values",
         [&] {
             makeZone(RectangularZone{big, big, big, 0, 0, 0, 1, 1, 1}, 3, xyz);
         }},
        {"index values",
         [&] {
             makeZone(CircularZone{big, big, big, 0, 0, 1, 0, 0}, 3, xyz);
         }},
        {"maximum of Z",
         [&] {
             makeZone(RectangularZone{1, 1, 1, 0, 0, 0, 1, 1, 1e300}, 3, xyz);
         }},
        {"data type",
         [&] {
             makeZone(RectangularZone{1, 1, 1, 0, 0, 0, 1, 1, 1, FieldDataType_Byte}, 3, xyz);
         }},
    };
    for (const Case& each : cases) {
        EXPECT_NE(refusal(each.action).find(each.expected), std::string::npos) << refusal(each.action);
    }
}
