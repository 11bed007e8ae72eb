#include "view/layers/ContourLineLayer.h"

#include "view/IsoLines.h"
#include "view/ZoneSurface.h"

#include <vtkPolyData.h>

#include <algorithm>

namespace vantrix::view {
void ContourLineLayer::update(ZoneSurface& surface, const ContourStyle& style, const ContourValues* values,
                              const ContourValues* colors, const LayerContext& context)
{
    setShown(style.hasLines() && values && values->field.values && !surface.isEmpty());
    if (!isShown()) {
        return;
    }
    const Source source{surface.revision(), values->field.values, values->field.location, values->colors.levels};
    if (source != m_source) {
        m_source = source;
        setLineGeometry(isoLines(surface.withValues(surface.surface(), values->field),
                                 values->field.location == ValueLocation_CellCentered, values->colors.levels));
    }
    setPattern(style.pattern, context.pixels(style.patternLength));
    // Alone, lines tell their values by colour; over a flood in the same colours they would vanish.
    const bool isAlone = style.type == ContourType_Lines && style.lineColor.contourGroup == 0;
    const bool isColored = isAlone || (colors && style.lineColor.contourGroup == style.lineGroup);
    setColor(style.lineColor.color);
    if (isColored) {
        setColors(values->colors, false);
    }
    setLines(context.lineWidth(isColored ? std::max(style.thickness, 0.25) : style.thickness));
}

} // namespace vantrix::view
