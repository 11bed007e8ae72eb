#include "view/layers/ContourLineLayer.h"

#include "view/ZoneSurface.h"

#include <vtkCellDataToPointData.h>
#include <vtkContourFilter.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>

#include <algorithm>

namespace vantrix::view {
namespace {

vtkSmartPointer<vtkPolyData> contourLines(ZoneSurface& surface, const ContourValues& values)
{
    vtkSmartPointer<vtkPolyData> source = surface.withValues(surface.surface(), values.field);
    if (values.field.location == ValueLocation_CellCentered) {
        const auto average = vtkSmartPointer<vtkCellDataToPointData>::New();
        average->SetInputData(source);
        average->Update();
        source = average->GetPolyDataOutput();
        source->GetPointData()->SetActiveScalars(ZoneSurface::valuesName);
    }
    const auto filter = vtkSmartPointer<vtkContourFilter>::New();
    filter->SetInputData(source);
    for (std::size_t i = 0; i < values.colors.levels.size(); ++i) {
        filter->SetValue(static_cast<int>(i), values.colors.levels[i]);
    }
    filter->Update();
    return filter->GetOutput();
}

} // namespace

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
        setGeometry(contourLines(surface, *values));
    }
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
