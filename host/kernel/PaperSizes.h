#pragma once

#include "api/VtxEnumerations.h"

namespace vantrix::kernel {

class StyleStore;

/* Inches. */
struct PaperDimensions
{
    double width = 0.0;
    double height = 0.0;
};

/* Of a page's paper in its orientation. */
PaperDimensions paperDimensions(const StyleStore& style, long pageId);

/* The same for a size and orientation that are not set; the page tells the sizes of one's own. */
PaperDimensions paperDimensions(const StyleStore& style, long pageId, PaperSize_e size, bool portrait);

} // namespace vantrix::kernel
