#include "propertymanager/FlagRelevance.h"
#include "propertymanager/UILocalStyleProperty.h"
#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

#include <gmock/gmock.h>

using namespace vantrix::sdk::ui::propertymanager;
using vantrix::test::FlagRelevance;

namespace {

/// Shows a number as its sign: true while it is not negative.
class SignDecorator : public UIStylePropertyDecoratorAbstract<bool, int>
{
public:
    using UIStylePropertyDecoratorAbstract<bool, int>::UIStylePropertyDecoratorAbstract;

    bool retrieveValue() const override { return wrapped().value() >= 0; }
    void storeValue(bool const& positive) override { wrapped().setValue(positive ? 1 : -1); }
};

class UIStylePropertyDecoratorTest : public testing::Test
{
protected:
    UILocalStyleProperty<int> number{1};
    SignDecorator sign{number};
};

} // namespace

TEST_F(UIStylePropertyDecoratorTest, ShowsTheWrappedValueInItsOwnForm)
{
    std::vector<bool> heard;
    sign.connectToValueChangedSignal([&heard](bool const& value) { heard.push_back(value); });
    number.setValue(-5);
    EXPECT_THAT(heard, testing::ElementsAre(false));
    heard.clear();
    sign.setValue(true);
    EXPECT_EQ(number.value(), 1);
    EXPECT_THAT(heard, testing::ElementsAre(true));
}

TEST_F(UIStylePropertyDecoratorTest, HasTheVisibleAndSensitiveStateOfTheWrappedProperty)
{
    FlagRelevance hidden(false);
    int changes = 0;
    sign.connectToVisibilityChangedSignal([&changes] { ++changes; });
    sign.addVisibilityRelevance(hidden);
    EXPECT_FALSE(number.isVisible());
    EXPECT_FALSE(sign.isVisible());
    EXPECT_EQ(changes, 1);
    hidden.set(true);
    EXPECT_TRUE(sign.isVisible());
    EXPECT_EQ(changes, 2);

    FlagRelevance disabled(false);
    number.addSensitivityRelevance(disabled);
    EXPECT_FALSE(sign.isSensitive());
    sign.removeSensitivityRelevance(disabled);
    EXPECT_TRUE(number.isSensitive());
}
