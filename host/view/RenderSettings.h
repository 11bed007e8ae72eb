#pragma once

#include "api/VtxEnumerations.h"

namespace vantrix::kernel {
class StyleStore;
}

namespace vantrix::view {

/* What stays in memory between two renderings of a frame: surfaces and what the graphics card has of them. */
enum class GraphicsCache
{
    All,
    LightOnly, /* of zones whose surface has few cells */
    None
};

/* The settings of the program that trade looks and memory for speed. */
struct RenderSettings
{
    bool redrawsAlways = true; /* else on request only */
    bool approximates = true;
    PlotApproximationMode_e approximation = PlotApproximationMode_Automatic;
    double keptPoints = 0.25;      /* of an approximate plot, of the points of its surfaces; 0 to 1 */
    double longestTime = 0.05;     /* seconds that rendering may take before a moving plot is approximated */
    bool approximatesTexts = true; /* an approximate plot has its texts, too */
    GraphicsCache cache = GraphicsCache::All;
    bool exportsAnew = true;    /* exported pictures are rendered for themselves; else they take what the screen has */
    bool exportsSorted = false; /* up to 64 translucent surfaces behind each other, in exported pictures */
    bool hasPlainTexts = false; /* texts on the screen without smoothed edges */
    bool hasPlainSmallTexts = false;

    bool operator==(const RenderSettings&) const = default;

    static RenderSettings read(const kernel::StyleStore& store);
};

} // namespace vantrix::view
