#include "propertymanager/FlagRelevance.h"
#include "propertymanager/UILocalStyleProperty.h"
#include "propertymanager/UIPropertyClassicDirectRelevance.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vantrix::sdk::ui::propertymanager;
using vantrix::test::FlagRelevance;

namespace {

class UIPropertyTest : public testing::Test
{
protected:
    UILocalStyleProperty<int> property{1};
    int visibilityChanges = 0;
    int sensitivityChanges = 0;
};

} // namespace

TEST_F(UIPropertyTest, IsVisibleAndSensitiveWhileAllRelevancesHold)
{
    FlagRelevance first(true);
    FlagRelevance second(false);
    EXPECT_TRUE(property.isVisible());
    property.addVisibilityRelevance(first);
    property.addVisibilityRelevance(second);
    property.addVisibilityRelevance(second);
    EXPECT_FALSE(property.isVisible());
    EXPECT_TRUE(property.isSensitive());
    property.removeVisibilityRelevance(second);
    EXPECT_TRUE(property.isVisible());
    first.set(false);
    EXPECT_FALSE(property.isVisible());
}

TEST_F(UIPropertyTest, SignalsOnlyWhenTheAnswerChanges)
{
    FlagRelevance first(true);
    FlagRelevance second(true);
    property.addSensitivityRelevance(first);
    property.addSensitivityRelevance(second);
    property.connectToSensitivityChangedSignal([this] { ++sensitivityChanges; });
    property.connectToVisibilityChangedSignal([this] { ++visibilityChanges; });
    first.set(false);
    second.set(false);
    first.set(true);
    EXPECT_EQ(sensitivityChanges, 1);
    second.set(true);
    EXPECT_EQ(sensitivityChanges, 2);

    FlagRelevance third(false);
    property.addSensitivityRelevance(third);
    property.removeSensitivityRelevance(third);
    EXPECT_EQ(sensitivityChanges, 4);
    EXPECT_EQ(visibilityChanges, 0);
}

TEST_F(UIPropertyTest, ListensToItsRelevancesOnlyWhileSomebodyListensToIt)
{
    FlagRelevance relevance(true);
    property.addVisibilityRelevance(relevance);
    EXPECT_EQ(relevance.connections, 0);
    boost::signals2::connection const connection =
        property.connectToVisibilityChangedSignal([this] { ++visibilityChanges; });
    EXPECT_EQ(relevance.connections, 1);
    connection.disconnect();
    relevance.set(false);
    relevance.set(true);
    property.connectToVisibilityChangedSignal([this] { ++visibilityChanges; });
    EXPECT_EQ(relevance.connections, 2);
    relevance.set(false);
    EXPECT_EQ(visibilityChanges, 1);
}

TEST_F(UIPropertyTest, ForgetsARelevanceThatIsGone)
{
    auto relevance = std::make_unique<FlagRelevance>(false);
    property.addVisibilityRelevance(*relevance);
    relevance.reset();
    EXPECT_TRUE(property.isVisible());
    property.connectToVisibilityChangedSignal([this] { ++visibilityChanges; });
    FlagRelevance other(false);
    property.addVisibilityRelevance(other);
    EXPECT_EQ(visibilityChanges, 1);
}

TEST_F(UIPropertyTest, CanBeSwitchedDirectlyAndGivenBackToItsRelevances)
{
    property.connectToSensitivityChangedSignal([this] { ++sensitivityChanges; });
    UIPropertyClassicDirectRelevance::directSetPropertySensitivity(property, false);
    UIPropertyClassicDirectRelevance::directSetPropertySensitivity(property, false);
    EXPECT_FALSE(property.isSensitive());
    EXPECT_TRUE(property.isVisible());
    UIPropertyClassicDirectRelevance::directSetPropertySensitivity(property, true);
    EXPECT_TRUE(property.isSensitive());
    EXPECT_EQ(sensitivityChanges, 2);
    UIPropertyClassicDirectRelevance::directSetPropertyVisibility(property, false);
    EXPECT_FALSE(property.isVisible());
    FlagRelevance relevance(false);
    property.addVisibilityRelevance(relevance);
    UIPropertyClassicDirectRelevance::directSetPropertyVisibility(property, true);
    EXPECT_FALSE(property.isVisible());
}
