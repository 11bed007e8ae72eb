#include "ExpectNear.h"
#include "view/PolarScale.h"
#include "view/PlotStyle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace vantrix::view;

namespace {

constexpr double pi = std::numbers::pi;

PlotStyle polar(double thetaMinimum, double thetaMaximum, double period, double rMinimum, double rMaximum,
                double rOrigin)
{
    PlotStyle plot;
    plot.type = PlotType_PolarLine;
    plot.thetaPeriod = period;
    plot.axes[0].minimum = thetaMinimum;
    plot.axes[0].maximum = thetaMaximum;
    plot.axes[1].minimum = rMinimum;
    plot.axes[1].maximum = rMaximum;
    plot.axes[1].valueAtOrigin = rOrigin;
    return plot;
}

} // namespace

TEST(PolarScale, PutsValuesOnTheCircle)
{
    PlotStyle plot = polar(0, 360, 360, 0, 2, 0);
    expectNear(PolarScale(plot).place(0, 2), {1, 0});
    expectNear(PolarScale(plot).place(90, 1), {0, 0.5});
    expectNear(PolarScale(plot).place(-450, 2), {0, -1});
    plot.axes[0].valueAtOrigin = 90.0;
    expectNear(PolarScale(plot).place(90, 2), {1, 0});
    plot.axes[0].isReversed = true;
    expectNear(PolarScale(plot).place(180, 2), {0, -1});
    expectNear(PolarScale(polar(0, 2 * pi, 2 * pi, 0, 1, 0)).place(pi, 1), {-1, 0});
    EXPECT_FALSE(std::isfinite(PolarScale(plot).place(0, -1).x())) << "nothing lies before the centre";
}

TEST(PolarScale, LeavesAHoleWhereTheRangeBeginsBeyondTheCenter)
{
    const PolarScale ring(polar(0, 360, 360, 5, 10, 0));
    EXPECT_DOUBLE_EQ(ring.innerRadius(), 0.5);
    EXPECT_DOUBLE_EQ(ring.radius(10), 1.0);
    PlotStyle plot = polar(0, 360, 360, 1, 1000, 0);
    plot.axes[1].isLogarithmic = true;
    EXPECT_DOUBLE_EQ(PolarScale(plot).radius(10), 1.0 / 3.0) << "0 has no logarithm; the range begins at the centre";
    plot.axes[1].isReversed = true;
    EXPECT_DOUBLE_EQ(PolarScale(plot).radius(1000), 0.0);
}

TEST(PolarScale, FindsValuesOfPlaces)
{
    for (const bool isReversed : {false, true}) {
        PlotStyle plot = polar(-180, 180, 360, 2, 10, 0);
        plot.axes[0].isReversed = isReversed;
        plot.axes[0].valueAtOrigin = 30.0;
        const PolarScale scale(plot);
        for (const QPointF values : {QPointF(-170, 3), QPointF(0, 10), QPointF(179, 5)}) {
            const QPointF found = scale.valuesAt(scale.place(values.x(), values.y()));
            EXPECT_NEAR(found.x(), values.x(), 1e-9);
            EXPECT_NEAR(found.y(), values.y(), 1e-9);
        }
    }
}

TEST(PolarScale, BoundsHoldJustTheSector)
{
    struct Case
    {
        double from;
        double to;
        QRectF expected;
    };
    for (const Case& one : {Case{0, 360, {-1, -1, 2, 2}},
                            {0, 90, {0, 0, 1, 1}},
                            {0, 180, {-1, 0, 2, 1}},
                            {90, 270, {-1, -1, 1, 2}},
                            {-90, 90, {0, -1, 1, 2}},
                            {0, 700, {-1, -1, 2, 2}}}) {
        const QRectF found = PolarScale(polar(one.from, one.to, 360, 0, 1, 0)).bounds();
        SCOPED_TRACE(testing::Message() << one.from << " to " << one.to);
        expectNear(found.topLeft(), one.expected.topLeft());
        expectNear(found.bottomRight(), one.expected.bottomRight());
    }
}
