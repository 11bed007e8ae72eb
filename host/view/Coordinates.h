#pragma once

#include "view/FramePlot.h"
#include "view/PaperSpacing.h"

#include <QString>

namespace vantrix::view {

/* The place of the pointer in words, numbers in the C locale: data coordinates where `plot` has them at `inFrame`, else
 * the place on the paper, given in inches, in the unit of its rulers. `plot` may be null. */
QString coordinatesText(const FramePlot* plot, QPointF inFrame, QPointF onPaper, const PaperSpacing& ruler);

} // namespace vantrix::view
