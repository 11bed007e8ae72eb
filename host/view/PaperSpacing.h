#pragma once

#include "api/VtxEnumerations.h"

namespace vantrix::view {

/* What a spacing of the paper's rulers and grid means on the paper. */
struct PaperSpacing
{
    double inches;       /* from one line or tick to the next; above 0 */
    double unitsPerInch; /* centimetres, inches or points */
    const char* unit;    /* "cm", "in" or "pt" */

    static PaperSpacing of(PaperUnitSpacing_e spacing);

    /* Every how many of the spacings something fits that needs `pixels`: 1, 2, 5, 10, 20, 50, ... */
    int stepsFor(double pixels, double pixelsPerInch) const;
};

} // namespace vantrix::view
