#include "property/Property.h"
#include "property/BoundedValueValidator.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using namespace vantrix;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// What a property told, in the order it was told.
template<typename T>
class Spy
{
public:
    explicit Spy(PropertyAbstract<T> const& property)
        : m_typed(property.connectToValueChangedSignal([this](T const& value) {
            values.push_back(value);
            order += "typed ";
        }))
        , m_untyped(property.connectToPropertyChangedSignal([this] { order += "untyped "; }))
    {}

    std::vector<T> values;
    std::string order;

private:
    boost::signals2::scoped_connection m_typed;
    boost::signals2::scoped_connection m_untyped;
};

class RoundingProperty : public PropertyAbstract<double>
{
public:
    void storeValue(double const& value) override
    {
        ++stores;
        m_value = std::round(value);
    }
    double retrieveValue() const override { return m_value; }

    int stores = 0;

private:
    double m_value = 0.0;
};

int calls = 0;
void countCall(long const&)
{
    ++calls;
}

struct Listener
{
    void changed(long const&) { ++count; }
    int count = 0;
};

} // namespace

TEST(Property, TellsTheUntypedListenersBeforeTheTypedOnes)
{
    Property<std::string> property("a");
    Spy<std::string> const spy(property);
    property.setValue("b");
    EXPECT_EQ(spy.order, "untyped typed ");
    EXPECT_THAT(spy.values, ElementsAre("b"));
    EXPECT_EQ(property.value(), "b");
}

TEST(Property, NeitherStoresNorSignalsTheValueItHas)
{
    RoundingProperty property;
    Spy<double> const spy(property);
    property.setValue(0.0);
    EXPECT_EQ(property.stores, 0);
    EXPECT_EQ(spy.order, "");
}

TEST(Property, SignalsWhatTheStorageKeptAndNotWhatItWasGiven)
{
    RoundingProperty property;
    Spy<double> const spy(property);
    property.setValue(2.4);
    EXPECT_THAT(spy.values, ElementsAre(2.0));
}

TEST(Property, TakesNaNAsAChangeEveryTime)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    Property<double> property(nan);
    Spy<double> const spy(property);
    property.setValue(nan);
    property.setValue(nan);
    EXPECT_EQ(spy.values.size(), 2U);
}

TEST(Property, KeepsItsValueAndIsSilentWhenTheValidatorRejects)
{
    Property<long> property(5, boost::make_shared<BoundedValueValidator<long>>(1, 9));
    Spy<long> const spy(property);
    try {
        property.setValue(10);
        FAIL() << "10 was accepted";
    } catch (InvalidPropertyValueException const& exception) {
        EXPECT_EQ(exception.message(), "The value must be greater than or equal to 1 and less than or equal to 9.");
        EXPECT_EQ(exception.what(), exception.message());
    }
    EXPECT_EQ(property.value(), 5);
    EXPECT_EQ(spy.order, "");
}

TEST(Property, IsNotMadeWithAnInitialValueThatItsValidatorRejects)
{
    auto const validator = boost::make_shared<BoundedValueValidator<double>>(
        0.0, 1.0, BoundedValueValidator<double>::LowerBound::Exclusive);
    EXPECT_THROW(Property<double>(0.0, validator), InvalidPropertyValueException);
    EXPECT_NO_THROW(Property<double>(1.0, validator));
}

TEST(Property, ConnectsAnEqualSlotOnlyOnce)
{
    Property<long> property(0);
    calls = 0;
    Listener listener;
    for (int i = 0; i < 2; ++i) {
        property.connectToValueChangedSignal(&countCall);
        property.connectToValueChangedSignal(boost::bind(&Listener::changed, &listener, boost::placeholders::_1));
    }
    EXPECT_EQ(property.valueChangedListenerCount(), 2U);
    property.setValue(1);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(listener.count, 1);
}

TEST(Property, SignalsASetFromWithinASlotAtOnce)
{
    Property<long> property(0);
    property.connectToValueChangedSignal([&property](long const& value) {
        if (value == 1) {
            property.setValue(2);
        }
    });
    Spy<long> const spy(property);
    property.setValue(1);
    EXPECT_EQ(property.value(), 2);
    EXPECT_THAT(spy.values, ElementsAre(2, 1));
}

TEST(Property, KeepsTheStoredValueWhenASlotThrows)
{
    Property<long> property(0);
    boost::signals2::scoped_connection const connection =
        property.connectToValueChangedSignal([](long const&) { throw std::runtime_error("slot"); });
    EXPECT_THROW(property.setValue(1), std::runtime_error);
    EXPECT_EQ(property.value(), 1);
}

TEST(InvalidPropertyValueException, TellsTheExceptionThatLedToIt)
{
    EXPECT_FALSE(InvalidPropertyValueException("alone").cause());
    try {
        throw std::out_of_range("inner");
    } catch (std::out_of_range const&) {
        InvalidPropertyValueException const outer("outer");
        ASSERT_TRUE(outer.cause());
        EXPECT_THROW(std::rethrow_exception(outer.cause()), std::out_of_range);
    }
}
