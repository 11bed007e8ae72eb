#include "view/LinePattern.h"

#include <algorithm>

namespace vantrix::view {
QList<double> dashParts(LinePattern_e pattern)
{
    switch (pattern) {
    case LinePattern_Dashed:
        return {0.6, 0.4};
    case LinePattern_DashDot:
        return {0.5, 0.2, 0.1, 0.2};
    case LinePattern_Dotted:
        return {0.2, 0.3, 0.2, 0.3};
    case LinePattern_LongDash:
        return {0.75, 0.25};
    case LinePattern_DashDotDot:
        return {0.4, 0.15, 0.075, 0.15, 0.075, 0.15};
    case LinePattern_Solid:
        break;
    }
    return {};
}

QPen patternPen(const Canvas& canvas, const QColor& color, double thickness, LinePattern_e pattern,
                double patternLength)
{
    QPen pen = canvas.pen(color, thickness);
    pen.setJoinStyle(Qt::RoundJoin);
    QList<double> dashes = dashParts(pattern);
    if (dashes.isEmpty()) {
        pen.setCapStyle(Qt::RoundCap);
        return pen;
    }
    pen.setCapStyle(Qt::FlatCap);
    // The pen counts in its own width. The smallest part must not be shorter than half of that.
    const double smallest = *std::min_element(dashes.begin(), dashes.end());
    const double length = std::max(patternLength * canvas.inch / pen.widthF(), 0.5 / smallest);
    for (double& dash : dashes) {
        dash *= length;
    }
    pen.setDashPattern(dashes);
    return pen;
}

} // namespace vantrix::view
