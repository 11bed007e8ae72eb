#include "property/Property.h"
#include "propertymanager/FlagRelevance.h"
#include "support/RecordingHost.h"
#include "ui/relevance/BooleanPropertyDependentRelevance.h"
#include "ui/relevance/FieldPlotTypeDependentRelevance.h"
#include "ui/relevance/InvertingRelevance.h"
#include "ui/relevance/LinePatternDependentRelevance.h"
#include "ui/relevance/LinePlotTypeDependentRelevance.h"
#include "ui/relevance/PlotTypeDependentRelevance.h"
#include "ui/relevance/RelevanceExpression.h"
#include "ui/relevance/StateChangeFilters.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

using namespace vantrix;
using namespace vantrix::sdk::ui::propertymanager;
using test::FlagRelevance;
using test::RecordingHost;
using Shared = boost::shared_ptr<RelevanceInterface const>;

namespace {

class HostRelevancesTest : public testing::Test
{
protected:
    HostRelevancesTest() { host.reset(); }

    void count(RelevanceInterface const& relevance)
    {
        relevance.connectToRelevanceChangedSignal([this] { ++signals; });
    }

    RecordingHost& host = RecordingHost::instance();
    int signals = 0;
};

} // namespace

TEST_F(HostRelevancesTest, AFlagAndALinePatternDecide)
{
    auto const flag = boost::make_shared<Property<bool>>(false);
    BooleanPropertyDependentRelevance const ofFlag(flag);
    auto const pattern = boost::make_shared<Property<LinePattern_e>>(LinePattern_Solid);
    LinePatternDependentRelevance const ofPattern(pattern);
    count(ofFlag);
    count(ofPattern);
    EXPECT_FALSE(ofFlag.isRelevant());
    EXPECT_FALSE(ofPattern.isRelevant());
    flag->setValue(true);
    pattern->setValue(LinePattern_DashDotDot);
    EXPECT_TRUE(ofFlag.isRelevant());
    EXPECT_TRUE(ofPattern.isRelevant());
    EXPECT_EQ(signals, 2);
}

TEST_F(HostRelevancesTest, AnInvertedRelevanceForwardsTheSignal)
{
    auto const inner = boost::make_shared<FlagRelevance>(true);
    InvertingRelevance const inverted{Shared(inner)};
    InvertingRelevance const twice(&inverted);
    count(twice);
    inner->set(false);
    EXPECT_TRUE(inverted.isRelevant());
    EXPECT_FALSE(twice.isRelevant());
    EXPECT_EQ(signals, 1);
}

TEST_F(HostRelevancesTest, AnExpressionIsEvaluatedFromLeftToRight)
{
    auto const a = boost::make_shared<FlagRelevance>(false);
    auto const b = boost::make_shared<FlagRelevance>(false);
    auto const c = boost::make_shared<FlagRelevance>(false);
    Shared const aAndBOrC = RelevanceExpression(a).aand(b).oor(c);
    Shared const aOrBAndC = RelevanceExpression(a).oor(b).aand(c);
    for (int bits = 0; bits < 8; ++bits) {
        a->set((bits & 1) != 0);
        b->set((bits & 2) != 0);
        c->set((bits & 4) != 0);
        EXPECT_EQ(aAndBOrC->isRelevant(), (a->isRelevant() && b->isRelevant()) || c->isRelevant()) << bits;
        EXPECT_EQ(aOrBAndC->isRelevant(), (a->isRelevant() || b->isRelevant()) && c->isRelevant()) << bits;
    }
    count(*aAndBOrC);
    a->set(false);
    b->set(false);
    c->set(false);
    EXPECT_EQ(signals, 3);
}

TEST_F(HostRelevancesTest, AnExpressionKeepsItsOperandsButNotItsResult)
{
    auto operand = boost::make_shared<FlagRelevance>(true);
    RelevanceExpression expression(operand);
    operand.reset();
    Shared result = expression;
    EXPECT_TRUE(result->isRelevant());
    EXPECT_EQ(static_cast<Shared>(expression), result);
    result.reset();
    EXPECT_THROW(static_cast<Shared>(expression), boost::bad_weak_ptr);
}

TEST_F(HostRelevancesTest, TellWhyTheyDoNotHold)
{
    Shared const holds = boost::make_shared<FlagRelevance>(true, "Not this.");
    Shared const fails = boost::make_shared<FlagRelevance>(false, "Turn the legend on.");
    Shared const both = RelevanceExpression(holds).aand(fails);
    Shared const either = RelevanceExpression(holds).oor(fails);
    EXPECT_EQ(both->reason(), "Turn the legend on.");
    EXPECT_EQ(either->reason(), "");
    EXPECT_EQ(PlotTypeDependentRelevance(PlotType_Cartesian3D).reason(), "This needs a 3D Cartesian plot.");
}

TEST_F(HostRelevancesTest, PlotTypesAreFollowed)
{
    host.define({"PlotType"}, 4L);
    PlotTypeDependentRelevance const polar(PlotType_PolarLine);
    LinePlotTypeDependentRelevance const line;
    FieldPlotTypeDependentRelevance const field;
    count(polar);
    host.change({"PlotType"}, 5L);
    EXPECT_EQ(signals, 1);
    struct Case
    {
        PlotType_e type;
        bool polar, line, field;
    };
    for (Case const& c : {Case{PlotType_Cartesian3D, false, false, true},
                          Case{PlotType_Cartesian2D, false, false, true}, Case{PlotType_XYLine, false, true, false},
                          Case{PlotType_Sketch, false, false, false}, Case{PlotType_PolarLine, true, true, false}}) {
        host.plotType = c.type;
        EXPECT_EQ(polar.isRelevant(), c.polar) << c.type;
        EXPECT_EQ(line.isRelevant(), c.line) << c.type;
        EXPECT_EQ(field.isRelevant(), c.field) << c.type;
    }
}

TEST_F(HostRelevancesTest, StateChangesThatPassTheFilterAreSignalledUntilTheEnd)
{
    StateChangeDependentRelevance const filtered(&sdk::ui::common::isPickListStateChange,
                                                 [this] { return host.dataSetIsAvailable; });
    StateChangeDependentRelevance const unfiltered([] { return false; }, "Never.");
    count(filtered);
    host.notify(StateChange_View);
    EXPECT_EQ(signals, 0);
    host.notify(StateChange_PickListItem);
    EXPECT_EQ(signals, 1);
    EXPECT_FALSE(filtered.isRelevant());
    host.dataSetIsAvailable = true;
    EXPECT_TRUE(filtered.isRelevant());
    EXPECT_EQ(unfiltered.reason(), "Never.");
    count(unfiltered);
    host.notify(StateChange_View);
    EXPECT_EQ(signals, 2);
    host.notify(StateChange_Quit);
    host.notify(StateChange_PickListItem);
    EXPECT_EQ(signals, 2);
}
