#include "view/layers/FloodLayer.h"

#include "view/ZoneSurface.h"

#include <vtkActor.h>
#include <vtkCellData.h>
#include <vtkClipPolyData.h>
#include <vtkFloatArray.h>
#include <vtkGeometryFilter.h>
#include <vtkLookupTable.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkProperty.h>
#include <vtkThreshold.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrix::view {
namespace {

/* One value a cell of a nodal field: the mean of the corners, or that of the first corner. */
void makeCellValues(vtkPolyData& surface, bool isMean)
{
    vtkDataArray* points = surface.GetPointData()->GetScalars();
    const auto cells = vtkSmartPointer<vtkFloatArray>::New();
    cells->SetName(points->GetName());
    cells->SetNumberOfTuples(surface.GetNumberOfCells());
    vtkIdType count = 0;
    const vtkIdType* corners = nullptr;
    surface.BuildCells();
    for (vtkIdType cell = 0; cell < surface.GetNumberOfCells(); ++cell) {
        surface.GetCellPoints(cell, count, corners);
        const vtkIdType taken = isMean ? count : std::min<vtkIdType>(count, 1);
        double sum = 0.0;
        for (vtkIdType i = 0; i < taken; ++i) {
            sum += points->GetComponent(corners[i], 0);
        }
        cells->SetValue(cell, taken > 0 ? static_cast<float>(sum / double(taken)) : 0.0F);
    }
    surface.GetCellData()->SetScalars(cells);
    surface.GetPointData()->SetActiveScalars(nullptr);
}

vtkSmartPointer<vtkPolyData> clipped(vtkPolyData* surface, double at, bool isAboveKept)
{
    const auto filter = vtkSmartPointer<vtkClipPolyData>::New();
    filter->SetInputData(surface);
    filter->SetValue(at);
    filter->SetInsideOut(!isAboveKept);
    filter->Update();
    return filter->GetOutput();
}

/* The part of a surface whose values a cutoff leaves. */
vtkSmartPointer<vtkPolyData> cutOff(vtkSmartPointer<vtkPolyData> surface, const ColorCutoff& cutoff, bool byCell)
{
    if (byCell) {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        const auto threshold = vtkSmartPointer<vtkThreshold>::New();
        threshold->SetInputData(surface);
        threshold->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_CELLS,
                                          vtkDataSetAttributes::SCALARS);
        threshold->SetThresholdFunction(vtkThreshold::THRESHOLD_BETWEEN);
        threshold->SetLowerThreshold(cutoff.minimum.value_or(-infinity));
        threshold->SetUpperThreshold(cutoff.maximum.value_or(infinity));
        const auto polygons = vtkSmartPointer<vtkGeometryFilter>::New();
        polygons->SetInputConnection(threshold->GetOutputPort());
        polygons->Update();
        return polygons->GetOutput();
    }
    if (cutoff.minimum) {
        surface = clipped(surface, *cutoff.minimum, true);
    }
    if (cutoff.maximum) {
        surface = clipped(surface, *cutoff.maximum, false);
    }
    return surface;
}

/* Colours that have as much of red, green and blue as values lie between none and all; grey where one is no number. */
template<class Contrasted>
vtkSmartPointer<vtkUnsignedCharArray> mixedColors(const std::array<vtkSmartPointer<vtkDataArray>, 3>& parts,
                                                  double minimum, double maximum, const Contrasted& contrasted)
{
    const auto part = [&](double value) {
        const double fraction = maximum > minimum ? (value - minimum) / (maximum - minimum) : value > maximum;
        return float(std::clamp(fraction, 0.0, 1.0));
    };
    auto colors = vtkSmartPointer<vtkUnsignedCharArray>::New();
    colors->SetNumberOfComponents(3);
    colors->SetNumberOfTuples(parts[0]->GetNumberOfTuples());
    for (vtkIdType i = 0; i < colors->GetNumberOfTuples(); ++i) {
        const std::array<double, 3> values{parts[0]->GetComponent(i, 0), parts[1]->GetComponent(i, 0),
                                           parts[2]->GetComponent(i, 0)};
        const bool isNumber = std::ranges::none_of(values, [](double value) { return std::isnan(value); });
        const QColor color = contrasted(isNumber ? QColor::fromRgbF(part(values[0]), part(values[1]), part(values[2]))
                                                 : QColor(Qt::gray));
        const std::array<double, 3> mixed{double(color.red()), double(color.green()), double(color.blue())};
        colors->SetTuple(i, mixed.data());
    }
    return colors;
}

} // namespace

vtkSmartPointer<vtkLookupTable> FloodLayer::contrastedTable(vtkLookupTable& table, double contrast)
{
    auto result = vtkSmartPointer<vtkLookupTable>::New();
    result->DeepCopy(&table);
    for (vtkIdType i = 0; i < table.GetNumberOfTableValues(); ++i) {
        const double* rgba = table.GetTableValue(i);
        const QColor color = contrasted(QColor::fromRgbF(float(rgba[0]), float(rgba[1]), float(rgba[2])), contrast);
        result->SetTableValue(i, color.redF(), color.greenF(), color.blueF(), 1.0);
    }
    return result;
}

void FloodLayer::update(ZoneSurface& surface, const ZoneStyle& style, const ContourValues* values,
                        const LayerContext& context)
{
    setShown(style.contour.hasFlood() && values && values->field.values && !surface.isEmpty());
    if (!isShown()) {
        return;
    }
    const ContourType_e type = style.contour.type;
    const bool isFlat = values->field.location == ValueLocation_CellCentered || type == ContourType_AverageCell ||
                        type == ContourType_PrimaryValue;
    const Source source{surface.revision(), values->field.values, values->field.location, type, values->colors.cutoff};
    if (source != m_source) {
        m_source = source;
        m_rgbSource = {};
        vtkSmartPointer<vtkPolyData> flood = surface.withValues(surface.litSurface(), values->field);
        if (isFlat && values->field.location == ValueLocation_Nodal) {
            makeCellValues(*flood, type == ContourType_AverageCell);
        }
        setGeometry(source.cutoff.isActive() ? cutOff(flood, source.cutoff, isFlat) : flood);
    }
    const LightStyle& light = context.light;
    const bool isLit = style.contour.isLit && context.isThreeD;
    if (isLit && light.colorContrast < 1.0) {
        setColors({values->colors.levels, contrastedTable(*values->colors.table, light.colorContrast), {}}, isFlat);
    } else {
        setColors(values->colors, isFlat);
    }
    setLook(style, context);
}

void FloodLayer::update(ZoneSurface& surface, const ZoneStyle& style, const RgbValues& values,
                        const LayerContext& context)
{
    const bool isComplete = std::ranges::all_of(values.fields, [](const auto& field) { return field.values; });
    setShown(style.contour.hasFlood() && isComplete && !surface.isEmpty());
    if (!isShown()) {
        return;
    }
    const ContourType_e type = style.contour.type;
    const bool isFlat =
        type == ContourType_AverageCell || type == ContourType_PrimaryValue ||
        std::ranges::any_of(values.fields, [](auto& field) { return field.location == ValueLocation_CellCentered; });
    const bool isLit = style.contour.isLit && context.isThreeD;
    const RgbSource source{surface.revision(),
                           {values.fields[0].values, values.fields[1].values, values.fields[2].values},
                           values.minimum,
                           values.maximum,
                           isLit ? context.light.colorContrast : 1.0,
                           type};
    if (source != m_rgbSource) {
        m_rgbSource = source;
        m_source = {};
        std::array<vtkSmartPointer<vtkDataArray>, 3> parts;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const vtkSmartPointer<vtkPolyData> part = surface.withValues(surface.litSurface(), values.fields[i]);
            if (isFlat && values.fields[i].location == ValueLocation_Nodal) {
                makeCellValues(*part, type != ContourType_PrimaryValue);
            }
            parts[i] = isFlat ? part->GetCellData()->GetScalars() : part->GetPointData()->GetScalars();
        }
        const auto flood = vtkSmartPointer<vtkPolyData>::New();
        flood->ShallowCopy(surface.litSurface());
        const vtkSmartPointer<vtkUnsignedCharArray> mixed =
            mixedColors(parts, values.minimum, values.maximum,
                        [&](const QColor& color) { return contrasted(color, source.contrast); });
        (isFlat ? static_cast<vtkDataSetAttributes*>(flood->GetCellData()) : flood->GetPointData())->SetScalars(mixed);
        setGeometry(flood);
    }
    setOwnColors(isFlat);
    setLook(style, context);
}

void FloodLayer::setLook(const ZoneStyle& style, const LayerContext& context)
{
    const LightStyle& light = context.light;
    const LightingEffect_e effect = light.forcesGouraud  ? LightingEffect_Gouraud
                                    : light.forcesPanels ? LightingEffect_Paneled
                                                         : style.lighting;
    setLighting(effect, style.opacity, style.contour.isLit, context);
    actor().GetProperty()->SetLineWidth(context.lineWidth(std::max(style.mesh.thickness, 0.3)));
}

} // namespace vantrix::view
