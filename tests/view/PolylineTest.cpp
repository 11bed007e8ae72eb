#include "view/Polyline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using namespace vantrix::view;

namespace {

const QRectF area(0.0, 0.0, 100.0, 50.0);
constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

std::vector<QPolygonF> drawn(const std::vector<QPointF>& points)
{
    Polyline line(area, 1.0);
    for (const QPointF& point : points) {
        line.add(point);
    }
    return line.take();
}

} // namespace

TEST(Polyline, KeepsTheExtremesOfEveryPixelColumn)
{
    std::mt19937 random(4);
    std::uniform_real_distribution<double> height(10.0, 40.0);
    constexpr int count = 1'000'000;
    Polyline line(area, 1.0);
    std::vector<double> lowest(100, 1e9);
    std::vector<double> highest(100, -1e9);
    for (int i = 0; i < count; ++i) {
        const QPointF point(100.0 * i / count, height(random));
        line.add(point);
        const auto column = static_cast<std::size_t>(point.x());
        lowest[column] = std::min(lowest[column], point.y());
        highest[column] = std::max(highest[column], point.y());
    }
    const auto pieces = line.take();
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_LE(pieces[0].size(), 400);
    std::vector<double> low(100, 1e9);
    std::vector<double> high(100, -1e9);
    for (const QPointF& point : pieces[0]) {
        const auto column = std::min<std::size_t>(99, static_cast<std::size_t>(point.x()));
        low[column] = std::min(low[column], point.y());
        high[column] = std::max(high[column], point.y());
    }
    EXPECT_EQ(low, lowest);
    EXPECT_EQ(high, highest);
}

TEST(Polyline, HasGapsWhereValuesAreMissing)
{
    EXPECT_EQ(drawn({{1, 1}, {5, 5}, {nothing, 3}, {20, 2}, {30, 3}}).size(), 2U);
    EXPECT_EQ(drawn({{nothing, 1}, {5, nothing}}).size(), 0U);
    EXPECT_EQ(drawn({{1, 1}, {INFINITY, 2}, {3, 3}}).size(), 2U);
    EXPECT_TRUE(drawn({}).empty());
}

TEST(Polyline, IsCutOffExactlyWhereItLeavesTheArea)
{
    // Far away in both directions: the slope inside must not suffer.
    const auto crossing = drawn({{-1e9, -1e9 + 10.0}, {1e9, 1e9 + 10.0}});
    ASSERT_EQ(crossing.size(), 1U);
    ASSERT_EQ(crossing[0].size(), 2);
    EXPECT_NEAR(crossing[0][0].y() - crossing[0][0].x(), 10.0, 1e-4);
    EXPECT_NEAR(crossing[0][1].y(), 50.0, 1e-4);

    const auto back = drawn({{10, 10}, {10.5, 500}, {90, 500}, {91, 10}});
    ASSERT_EQ(back.size(), 2U) << "leaves below and comes back";
    for (const QPolygonF& piece : back) {
        for (const QPointF& point : piece) {
            EXPECT_TRUE(area.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(point));
        }
    }
    EXPECT_TRUE(drawn({{-10, 10}, {-20, 40}}).empty());
}
