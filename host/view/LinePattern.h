#pragma once

#include "api/VtxEnumerations.h"
#include "view/Canvas.h"

namespace vantrix::view {

/* Dashes and gaps in turn, in parts of one repetition; none of a solid line. */
QList<double> dashParts(LinePattern_e pattern);

/*
 * A pen that draws a pattern: `thickness` and `patternLength` (of one repetition) in inches. A pattern never gets so
 * short that its parts run together.
 */
QPen patternPen(const Canvas& canvas, const QColor& color, double thickness, LinePattern_e pattern,
                double patternLength);

} // namespace vantrix::view
