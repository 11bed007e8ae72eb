#include "property/PropertyTypeAdapter.h"
#include "property/Property.h"

#include <gmock/gmock.h>

using namespace vantrix;
using testing::ElementsAre;

namespace {

enum class Kind
{
    Plain,
    Rich,
    Refused
};

class KindValidator : public virtual ValidatorInterface<Kind>
{
public:
    ValidationResult validate(Kind const& kind) const override
    {
        ValidationResult result;
        if (kind == Kind::Refused) {
            result.setErrorString("Choose another kind.");
        }
        return result;
    }
};

class PropertyTypeAdapterTest : public testing::Test
{
protected:
    boost::shared_ptr<Property<Kind>> source =
        boost::make_shared<Property<Kind>>(Kind::Plain, boost::make_shared<KindValidator>());
    PropertyTypeAdapter<int, Kind> adapter{source, [](Kind const& kind) { return static_cast<int>(kind); },
                                           [](int const& number) {
                                               if (number > 2) {
                                                   throw InvalidPropertyValueException("There is no such kind.");
                                               }
                                               return static_cast<Kind>(number);
                                           }};
    std::vector<int> heard;
    boost::signals2::scoped_connection listener =
        adapter.connectToValueChangedSignal([this](int const& value) { heard.push_back(value); });
};

} // namespace

TEST_F(PropertyTypeAdapterTest, SetsTheSourceAndSignalsOnce)
{
    int sourceChanges = 0;
    source->connectToValueChangedSignal([&sourceChanges](Kind const&) { ++sourceChanges; });
    adapter.setValue(1);
    EXPECT_EQ(source->value(), Kind::Rich);
    EXPECT_EQ(sourceChanges, 1);
    EXPECT_THAT(heard, ElementsAre(1));
}

TEST_F(PropertyTypeAdapterTest, FollowsTheSource)
{
    source->setValue(Kind::Rich);
    EXPECT_EQ(adapter.value(), 1);
    EXPECT_THAT(heard, ElementsAre(1));
}

TEST_F(PropertyTypeAdapterTest, RejectsWhatTheSourceRejectsAndWhatCannotBeConverted)
{
    EXPECT_EQ(adapter.validator()->validate(2).errorString(), "Choose another kind.");
    EXPECT_EQ(adapter.validator()->validate(3).errorString(), "There is no such kind.");
    EXPECT_THROW(adapter.setValue(2), InvalidPropertyValueException);
    EXPECT_EQ(source->value(), Kind::Plain);
    EXPECT_TRUE(heard.empty());
}

TEST(PropertyTypeAdapter, WithAnEmptyConversionCannotBeUsed)
{
    PropertyTypeAdapter<int, Kind> adapter(boost::make_shared<Property<Kind>>(Kind::Plain), {}, {});
    EXPECT_THROW(adapter.value(), boost::bad_function_call);
    EXPECT_THROW(adapter.setValue(1), boost::bad_function_call);
}
