#include "property/Property.h"
#include "propertymanager/SpinBoxIncDecCalculatorPercentage.h"
#include "propertymanager/SpinBoxIncDecCalculatorWholeNumberRange.h"
#include "propertymanager/StreamTraceIJKSpinBoxIncDecCalculator.h"
#include "propertymanager/XYZSpinBoxIncDecCalculator.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

using namespace vantrix::sdk::ui::propertymanager;
using vantrix::test::RecordingHost;

namespace {

struct StepCalculators : testing::Test
{
    StepCalculators()
    {
        host.reset();
        host.define({"TwoDAxis", "XDetail", "GRSpacing"}, 0.25);
        host.define({"TwoDAxis", "YDetail", "GRSpacing"}, 4.0);
        host.define({"ThreeDAxis", "ZDetail", "VarNum"}, 3L);
        host.extents = {{3, {-10.0, 30.0}}};
    }

    RecordingHost& host = RecordingHost::instance();
};

} // namespace

TEST_F(StepCalculators, ACoordinateStepsByTheGridOfItsAxisIn2DAndByATwentiethOfZIn3D)
{
    struct Case
    {
        PlotType_e plotType;
        XYZSpinBoxIncDecCalculator::Var_e coordinate;
        int factor;
        double next;
    };
    for (Case const& each : {Case{PlotType_Cartesian2D, XYZSpinBoxIncDecCalculator::X, 1, 1.25},
                             Case{PlotType_Cartesian2D, XYZSpinBoxIncDecCalculator::Y, 1, 5.0},
                             Case{PlotType_Cartesian2D, XYZSpinBoxIncDecCalculator::Z, 1, 1.25},
                             Case{PlotType_Cartesian2D, XYZSpinBoxIncDecCalculator::Y, 3, 13.0},
                             Case{PlotType_Cartesian3D, XYZSpinBoxIncDecCalculator::X, 1, 3.0},
                             Case{PlotType_Cartesian3D, XYZSpinBoxIncDecCalculator::Z, 2, 5.0},
                             Case{PlotType_Cartesian3D, XYZSpinBoxIncDecCalculator::Z, 0, 1.0},
                             Case{PlotType_XYLine, XYZSpinBoxIncDecCalculator::X, 1, 1.0},
                             Case{PlotType_Sketch, XYZSpinBoxIncDecCalculator::X, 1, 1.0}}) {
        host.plotType = each.plotType;
        XYZSpinBoxIncDecCalculator calculator(each.coordinate);
        calculator.setDeltaFactor(each.factor);
        EXPECT_EQ(each.next, calculator.increment(1.0)) << each.plotType << ' ' << each.coordinate;
        EXPECT_EQ(1.0, calculator.decrement(each.next));
    }
}

TEST_F(StepCalculators, ACoordinateStaysWhereItIsWhenTheZAxisHasNoVariable)
{
    host.plotType = PlotType_Cartesian3D;
    host.failReads = true;
    XYZSpinBoxIncDecCalculator calculator(XYZSpinBoxIncDecCalculator::X);
    EXPECT_EQ(1.0, calculator.increment(1.0));
}

TEST_F(StepCalculators, AnIndexStopsAtTheEndsOfItsZone)
{
    host.zoneDimensions = {{2, {10, 1, 1}}};
    vantrix::Property<int> const zone(2);
    StreamTraceIJKSpinBoxIncDecCalculator i(zone, SpinBoxIncDecCalculatorIJKAbstract::IPlane);
    StreamTraceIJKSpinBoxIncDecCalculator j(zone, SpinBoxIncDecCalculatorIJKAbstract::JPlane);
    EXPECT_EQ(10, i.increment(9));
    EXPECT_EQ(10, i.increment(10));
    EXPECT_EQ(1, i.decrement(1));
    EXPECT_EQ(1, j.increment(1));
    i.setDeltaFactor(5);
    EXPECT_EQ(4, i.decrement(9));
    EXPECT_EQ(10, i.increment(400)) << "an index out of range comes back";
}

TEST_F(StepCalculators, PercentagesNeverStickAndWholeNumbersStayInTheirRange)
{
    SpinBoxIncDecCalculatorPercentage percent(10.0, 2);
    EXPECT_DOUBLE_EQ(220.0, percent.increment(200.0));
    EXPECT_DOUBLE_EQ(0.01, percent.increment(0.0));
    EXPECT_DOUBLE_EQ(-0.01, percent.decrement(0.0));
    EXPECT_DOUBLE_EQ(-0.9, percent.increment(-1.0));

    SpinBoxIncDecCalculatorWholeNumberRange range(1, 8, 3);
    EXPECT_EQ(4, range.increment(1));
    EXPECT_EQ(8, range.increment(7));
    EXPECT_EQ(1, range.decrement(2));
    EXPECT_EQ(5, range.increment(2.5));
}

TEST_F(StepCalculators, SeveralStepsAtOnceGoAsFarAsOneByOne)
{
    SpinBoxIncDecCalculatorBase fixed(2.5);
    SpinBoxIncDecCalculatorPercentage percent(10.0, 2);
    SpinBoxIncDecCalculatorWholeNumberRange range(-20, 50, 3);
    for (SpinBoxIncDecCalculatorBase* const calculator : {&fixed, static_cast<SpinBoxIncDecCalculatorBase*>(&percent),
                                                          static_cast<SpinBoxIncDecCalculatorBase*>(&range)}) {
        double up = 7.0;
        double down = 7.0;
        for (int step = 0; step < 10; ++step) {
            up = calculator->increment(up);
            down = calculator->decrement(down);
        }
        EXPECT_DOUBLE_EQ(up, calculator->afterSteps(7.0, 10));
        EXPECT_DOUBLE_EQ(down, calculator->afterSteps(7.0, -10));
        EXPECT_EQ(7.0, calculator->afterSteps(7.0, 0));
        EXPECT_EQ(1, calculator->deltaFactor()) << "the next input starts anew";
    }
}
