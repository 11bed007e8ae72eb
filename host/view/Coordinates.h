#pragma once

#include "view/FramePlot.h"

#include <QString>

namespace vantrix::view {

/* The place of the pointer in words, numbers in the C locale: data coordinates where `plot` has them at `inFrame`, else
 * inches of the paper. `plot` may be null. */
QString coordinatesText(const FramePlot* plot, QPointF inFrame, QPointF onPaper);

} // namespace vantrix::view
