#pragma once

#include "view/ZoneStyle.h"

namespace vantrix::view {

/* Lines of streamtraces. Lengths are per cent of the frame's height. */
struct StreamlineStyle
{
    LayerColor color;
    double thickness = 0.1;
    bool hasArrowheads = false;
    double arrowheadSize = 1.0;
    double arrowheadSpacing = 5.0;

    bool operator==(const StreamlineStyle&) const = default;
};

/* Rods and ribbons. */
struct RodRibbonStyle
{
    double width = 0.05; /* of ribbons, and the diameter of rods, in units of X */
    long rodCorners = 3;
    MeshStyle mesh;
    ContourStyle contour;
    ShadeStyle shade;
    LightingEffect_e lighting = LightingEffect_Gouraud;
    double opacity = 1.0;

    bool operator==(const RodRibbonStyle&) const = default;
};

/* Where time is marked along streamtraces. */
struct StreamTimes
{
    double start = 0.0;
    double end = 1.0;
    double delta = 1.0;  /* above 0 */
    double anchor = 0.0; /* a marked time */

    bool operator==(const StreamTimes&) const = default;
};

/* The streamtraces of a frame. */
struct StreamtraceStyle
{
    bool isShown = false;
    bool hasPaths = true;
    StreamlineStyle line;
    RodRibbonStyle rodRibbon;
    bool hasMarks = false;
    ScatterStyle mark;
    StreamTimes times;
    long dashSkip = 0; /* steps of time that a dash is long, and the gap behind it; 0 for whole lines */

    bool operator==(const StreamtraceStyle&) const = default;

    static StreamtraceStyle read(const StyleReader& frame);
};

} // namespace vantrix::view
