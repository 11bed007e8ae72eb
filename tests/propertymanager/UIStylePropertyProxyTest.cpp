#include "propertymanager/UIStylePropertyProxy.h"
#include "property/BoundedValueValidator.h"
#include "property/Property.h"

#include <gmock/gmock.h>

#include <limits>

using namespace vantrix;
using namespace vantrix::sdk::ui::propertymanager;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CountingProperty : public Property<double>
{
public:
    using Property<double>::Property;

    void storeValue(double const& value) override
    {
        ++stores;
        Property<double>::storeValue(value);
    }

    int stores = 0;
};

class UIStylePropertyProxyTest : public testing::Test
{
protected:
    CountingProperty first{1.0};
    CountingProperty second{2.0};
    UIStylePropertyProxy<double> proxy{first};
    std::vector<double> heard;
    boost::signals2::scoped_connection listener =
        proxy.connectToValueChangedSignal([this](double const& value) { heard.push_back(value); });
};

} // namespace

TEST_F(UIStylePropertyProxyTest, FollowsItsTargetAndNoOther)
{
    first.setValue(5.0);
    proxy.setProperty(second);
    first.setValue(6.0);
    second.setValue(7.0);
    EXPECT_THAT(heard, ElementsAre(5.0, 2.0, 7.0));
    EXPECT_EQ(proxy.value(), 7.0);
}

TEST_F(UIStylePropertyProxyTest, SignalsAnExchangeOnlyWhenTheValueDiffers)
{
    CountingProperty same(1.0);
    proxy.setProperty(same);
    proxy.setProperty(same);
    EXPECT_THAT(heard, IsEmpty());
    proxy.setProperty(second);
    EXPECT_THAT(heard, ElementsAre(2.0));
}

TEST_F(UIStylePropertyProxyTest, StoresInTheTargetUnlessItHasTheValue)
{
    proxy.setValue(1.0);
    proxy.storeValue(1.0);
    EXPECT_EQ(first.stores, 0);
    EXPECT_THAT(heard, IsEmpty());
    std::vector<double> heardByTarget;
    first.connectToValueChangedSignal([&heardByTarget](double const& value) { heardByTarget.push_back(value); });
    proxy.setValue(3.0);
    EXPECT_EQ(first.value(), 3.0);
    EXPECT_EQ(first.stores, 1);
    EXPECT_THAT(heardByTarget, ElementsAre(3.0));
    EXPECT_THAT(heard, ElementsAre(3.0));
    proxy.setValue(std::numeric_limits<double>::quiet_NaN());
    proxy.setValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(first.stores, 3);
}

TEST_F(UIStylePropertyProxyTest, TakesOnlyWhatTheTargetsValidatorAccepts)
{
    Property<double> bounded(0.5, boost::make_shared<BoundedValueValidator<double>>(0.0, 1.0));
    proxy.setProperty(bounded);
    EXPECT_THROW(proxy.setValue(2.0), InvalidPropertyValueException);
    EXPECT_EQ(bounded.value(), 0.5);
}

TEST_F(UIStylePropertyProxyTest, RelaysNothingWhileNobodyListens)
{
    EXPECT_EQ(first.valueChangedListenerCount(), 1U);
    listener.disconnect();
    first.setValue(8.0);
    EXPECT_EQ(first.valueChangedListenerCount(), 0U);
    EXPECT_EQ(second.valueChangedListenerCount(), 0U);
}
