#include "propertymanager/PropertyDependentRelevance.h"
#include "property/Property.h"
#include "propertymanager/FlagRelevance.h"
#include "propertymanager/UILocalStyleProperty.h"

#include <gtest/gtest.h>

using namespace vantrix;
using namespace vantrix::sdk::ui::propertymanager;
using test::FlagRelevance;

TEST(PropertyDependentRelevance, HoldsForEachOfItsValues)
{
    UILocalStyleProperty<int> property(1);
    PropertyDependentRelevance<int> relevance(property, 1);
    EXPECT_TRUE(relevance.isRelevant());
    property.setValue(2);
    EXPECT_FALSE(relevance.isRelevant());
    relevance.addRelevantValue(2);
    EXPECT_TRUE(relevance.isRelevant());
    property.setValue(1);
    EXPECT_TRUE(relevance.isRelevant());
    property.setValue(3);
    EXPECT_FALSE(relevance.isRelevant());
}

TEST(PropertyDependentRelevance, FailsWhenTheControllerItselfIsInsensitiveOrHidden)
{
    UILocalStyleProperty<bool> checked(true);
    PropertyDependentRelevance<bool> const relevance(checked, true);
    FlagRelevance sensitive(true);
    FlagRelevance visible(true);
    checked.addSensitivityRelevance(sensitive);
    checked.addVisibilityRelevance(visible);
    int signals = 0;
    relevance.connectToRelevanceChangedSignal([&signals] { ++signals; });

    sensitive.set(false);
    EXPECT_FALSE(relevance.isRelevant());
    EXPECT_EQ(signals, 1);
    sensitive.set(true);
    visible.set(false);
    EXPECT_FALSE(relevance.isRelevant());
    EXPECT_EQ(signals, 3);
    visible.set(true);
    EXPECT_TRUE(relevance.isRelevant());
    checked.setValue(false);
    EXPECT_EQ(signals, 5);
}

TEST(PropertyDependentRelevance, KeepsASharedControllerOfAnyKind)
{
    auto plain = boost::make_shared<Property<bool>>(false);
    PropertyDependentRelevance<bool> const ofPlain(plain, true);
    boost::weak_ptr<Property<bool>> const watched(plain);
    plain.reset();
    ASSERT_FALSE(watched.expired());
    int signals = 0;
    ofPlain.connectToRelevanceChangedSignal([&signals] { ++signals; });
    watched.lock()->setValue(true);
    EXPECT_TRUE(ofPlain.isRelevant());
    EXPECT_EQ(signals, 1);

    auto const local = boost::make_shared<UILocalStyleProperty<bool>>(true);
    PropertyDependentRelevance<bool> const ofLocal(local, true);
    FlagRelevance insensitive(false);
    local->addSensitivityRelevance(insensitive);
    EXPECT_FALSE(ofLocal.isRelevant());
}
