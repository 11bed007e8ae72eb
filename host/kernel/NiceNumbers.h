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

} // namespace vantrix::kernel
