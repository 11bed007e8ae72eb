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

/* Axes of line plots but theta. */
bool canBeLogarithmic(PlotType_e plotType, char kind);

/* Where the style of an axis of a frame's plot is. */
struct AxisPlace
{
    long frame = 0;
    std::string path; /* of the axis detail, with a slash at the end */
    long offset = -1;

    /* Throws DataError, with the axes that there are, when a plot of the type has no such axis. */
    static AxisPlace find(const Frame& frame, PlotType_e plotType, AxisName axis);

    /* The entry of a value below the axis detail; -1 when axes of this plot do not have it. */
    long entry(const StyleStore& style, const char* value) const;
};

PlotType_e plotTypeOf(const StyleStore& style, const Frame& frame);

/* The path of the detail of an axis, with a slash at the end. */
std::string axisPath(PlotType_e plotType, char kind);

/* What users know an axis by: "X", "Theta", of an XY line plot "X2". */
std::string axisText(PlotType_e plotType, AxisName axis);

} // namespace vantrix::kernel
