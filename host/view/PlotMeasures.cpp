#include "view/PlotMeasures.h"

#include <algorithm>

namespace vantrix::view {

PlotMeasures PlotMeasures::forFrame(QSizeF inches)
{
    const double size = std::clamp(std::min(inches.width(), inches.height() * 1.1), 0.5, 20.0);
    const double label = std::clamp(0.021 * size, 0.055, 0.3);
    return {label, label * 1.15, label * 0.45, label * 0.07};
}

} // namespace vantrix::view
