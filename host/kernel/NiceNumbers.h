#pragma once

namespace vantrix::kernel {

/* A range of an axis or of contour levels. */
struct NiceRange
{
    double minimum = 0.0;
    double maximum = 1.0;
    double spacing = 0.2; /* of ticks or levels; divides the range evenly after niceRange() */
};

/* 1, 2 or 5 times a power of ten: the one that comes nearest to `length / count` from above. `length` is above 0. */
double niceSpacing(double length, int count);

/*
 * The smallest range between multiples of a nice spacing that holds both numbers, with about `count` spacings. Two
 * equal numbers give a range around them.
 */
NiceRange niceRange(double minimum, double maximum, int count = 5);

/* The smallest range between powers of ten that holds both numbers, which are above 0; `spacing` is 10. Two equal
 * powers of ten give the decade above. */
NiceRange niceDecades(double minimum, double maximum);

/* The multiple of a nice spacing that follows a number, upwards or downwards. */
double nextNiceValue(double value, double spacing, bool up);

/* The number 1, 2 or 5 times a power of ten that follows a number above 0, upwards or downwards. */
double nextNiceFactor(double value, bool up);

/* A number without what binary arithmetic adds to it far behind the last decimal that matters beside `step`, which is
 * above 0: 0.3 where three times 0.1 was added up. */
double withoutRounding(double value, double step);

} // namespace vantrix::kernel
