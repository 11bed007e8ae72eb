#pragma once

#include "kernel/Frame.h"

namespace vantrix::kernel {

class StyleStore;

/* The numbers of the variables that serve as axes; 0 where none does. */
struct AxisVariables
{
    long x = 0;
    long y = 0;
    long z = 0;
};

/*
 * What the style of a frame says for its plot type: of a field plot the variables of its axes (a 2D plot has no Z), of
 * a line plot those of its first line map, of a sketch none. Numbers that the data set does not have count as none.
 */
AxisVariables axisVariables(const StyleStore& style, const Frame& frame);

/* What data set suggests: variables named like coordinates ("X", "y", "CoordinateZ", "X(M)"), else the first ones. */
AxisVariables guessAxisVariables(const DataSet& dataSet);

} // namespace vantrix::kernel
