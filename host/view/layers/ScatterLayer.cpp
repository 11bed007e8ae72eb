#include "view/layers/ScatterLayer.h"

#include "view/ZonePoints.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {

void ScatterLayer::update(const ZonePoints& points, const ScatterStyle& style, const kernel::FieldArray& sizes,
                          const ContourValues* lineColors, const ContourValues* fillColors, const LayerContext& context)
{
    const auto colors = [](const LayerColor& color, const ContourValues* values) {
        return color.contourGroup > 0 && values && values->field.values ? values : nullptr;
    };
    const ContourValues* lines = colors(style.color, lineColors);
    const ContourValues* fill = style.character.empty() ? colors(style.fill, fillColors) : lines;
    const vtkSmartPointer<vtkDataArray> sizing = style.isSizedByVariable ? sizes.values : nullptr;
    const double percent = sizing ? context.scatter.relativeSize : style.size;
    if (!setLooks(style, style.isShown && !points.places().empty(), lines ? &lines->colors : nullptr,
                  fill ? &fill->colors : nullptr, percent * context.pixelsPerPercent, context)) {
        return;
    }
    const Source source{points.revision(), sizing, lines ? lines->field.values : nullptr,
                        fill ? fill->field.values : nullptr};
    if (source == m_source) {
        return;
    }
    m_source = source;
    std::vector<double> factors;
    if (sizing) {
        factors = points.values(sizes);
        for (double& factor : factors) {
            factor = std::isfinite(factor) ? std::max(0.0, factor) : 0.0;
        }
    }
    setPoints(points.places(), lines ? points.values(lines->field) : std::vector<double>(),
              fill ? points.values(fill->field) : std::vector<double>(), factors);
}

} // namespace vantrix::view
