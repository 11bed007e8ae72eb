#include "property/BoundedValueValidator.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vantrix;

namespace {

template<typename T>
std::string errorOf(BoundedValueValidator<T> const& validator, T value)
{
    ValidationResult const result = validator.validate(value);
    EXPECT_EQ(result.isValid(), result.errorString().empty());
    return result.errorString();
}

constexpr double Largest = std::numeric_limits<double>::max();
using Doubles = BoundedValueValidator<double>;
using Longs = BoundedValueValidator<long>;

} // namespace

TEST(BoundedValueValidator, BoundsAreInclusiveUnlessSaidOtherwise)
{
    Longs const validator(1, 10);
    EXPECT_EQ(errorOf(validator, 1L), "");
    EXPECT_EQ(errorOf(validator, 10L), "");
    std::string const error = "The value must be greater than or equal to 1 and less than or equal to 10.";
    EXPECT_EQ(errorOf(validator, 0L), error);
    EXPECT_EQ(errorOf(validator, 11L), error);
}

TEST(BoundedValueValidator, AnExclusiveBoundRejectsExactlyTheBound)
{
    Doubles const validator(0.0, Largest, Doubles::LowerBound::Exclusive);
    EXPECT_EQ(errorOf(validator, 0.0), "The value must be greater than 0 and less than or equal to 1.79769e+308.");
    EXPECT_EQ(errorOf(validator, std::numeric_limits<double>::denorm_min()), "");
    EXPECT_EQ(errorOf(validator, Largest), "");

    Doubles const below(0.0, 1.0, Doubles::LowerBound::Inclusive, Doubles::UpperBound::Exclusive);
    EXPECT_EQ(errorOf(below, 0.0), "");
    EXPECT_EQ(errorOf(below, 1.0), "The value must be greater than or equal to 0 and less than 1.");
}

TEST(BoundedValueValidator, AnUnknownKindSwitchesTheCheckAtThatEndOff)
{
    BoundedValueValidator<int> const validator(0, 5, BoundedValueValidator<int>::LowerBound{2});
    EXPECT_EQ(errorOf(validator, -100), "");
    EXPECT_EQ(errorOf(validator, 6), "The value must be greater than 0 and less than or equal to 5.");
}
