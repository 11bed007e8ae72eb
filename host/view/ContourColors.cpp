#include "view/ContourColors.h"

#include "view/AxisTicks.h"
#include "view/ColorMap.h"

#include <vtkLookupTable.h>

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr int tableSize = 1024;

double mapFraction(const ContourGroupStyle& style, double value)
{
    const std::vector<double>& levels = style.levels;
    double fraction = 0.5;
    if (style.isContinuous && levels.size() > 1) {
        fraction = (value - levels.front()) / (levels.back() - levels.front());
    } else if (!levels.empty()) {
        const auto band = std::upper_bound(levels.begin(), levels.end(), value) - levels.begin();
        fraction = double(band) / double(levels.size());
    }
    return style.isReversed ? 1.0 - fraction : fraction;
}

} // namespace

QColor contourColor(const ContourGroupStyle& style, double value)
{
    return std::isnan(value) ? QColor(Qt::gray) : ColorMap::byName(style.colorMap).at(mapFraction(style, value));
}

ContourColors ContourColors::make(const ContourGroupStyle& style)
{
    ContourColors colors;
    colors.levels = style.levels;
    colors.cutoff = style.cutoff;
    colors.table = vtkSmartPointer<vtkLookupTable>::New();
    if (style.levels.empty()) {
        return colors;
    }
    const double range = style.levels.back() - style.levels.front();
    const double reach = range > 0.0 ? range / tableSize : std::max(1e-12, std::abs(style.levels.front()) * 1e-6);
    const double first = style.levels.front() - reach;
    const double last = style.levels.back() + reach;
    colors.table->SetNumberOfTableValues(tableSize);
    colors.table->SetTableRange(first, last);
    for (int i = 0; i < tableSize; ++i) {
        const QColor color = contourColor(style, first + (i + 0.5) / tableSize * (last - first));
        colors.table->SetTableValue(i, color.redF(), color.greenF(), color.blueF(), 1.0);
    }
    const QColor nan = contourColor(style, std::nan(""));
    colors.table->SetNanColor(nan.redF(), nan.greenF(), nan.blueF(), 1.0);
    return colors;
}

std::vector<double> niceLevels(double minimum, double maximum, int count)
{
    if (!(maximum > minimum)) {
        return {minimum};
    }
    TickRequest request;
    request.length = count;
    request.minimumDistance = 1.0;
    request.minorCount = 0;
    std::vector<double> levels;
    for (const Tick& tick : AxisTicks::make(AxisScale(minimum, maximum), request).major) {
        levels.push_back(tick.value);
    }
    return levels.empty() ? std::vector<double>{0.5 * (minimum + maximum)} : levels;
}

} // namespace vantrix::view
