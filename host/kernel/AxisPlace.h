#pragma once

#include "api/VtxEnumerations.h"

#include <string>
#include <string_view>

namespace vantrix::kernel {

class Frame;
class StyleStore;

/* An axis as the interface names it; see VtxUtilAxis.h. */
struct AxisName
{
    char kind = 'X';
    int number = 1;
};

/* The kinds of axes that a plot has, and how many there are of each. */
std::string_view axisKinds(PlotType_e plotType);
int axesOfAKind(PlotType_e plotType);
bool hasAxis(PlotType_e plotType, AxisName axis);

/* Where the style of an axis of a frame's plot is. */
struct AxisPlace
{
    long frame = 0;
    std::string path; /* of the axis detail, with a slash at the end */
    long offset = -1;

    /* Throws DataError, with the axes that there are, when the frame's plot has no such axis. */
    static AxisPlace find(const StyleStore& style, const Frame& frame, AxisName axis);

    /* The entry of a value below the axis detail; -1 when axes of this plot do not have it. */
    long entry(const StyleStore& style, const char* value) const;
};

PlotType_e plotTypeOf(const StyleStore& style, const Frame& frame);

/* "'X' number 1" */
std::string axisText(AxisName axis);

} // namespace vantrix::kernel
