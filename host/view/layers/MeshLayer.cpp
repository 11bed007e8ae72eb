#include "view/layers/MeshLayer.h"

#include "view/ZoneSurface.h"

#include <vtkActor.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIdList.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkProperty.h>

#include <algorithm>
#include <set>
#include <utility>

namespace vantrix::view {
namespace {

/* Each edge of the cells once, with the cell that it was met at first. */
vtkSmartPointer<vtkPolyData> edgesOf(vtkPolyData* cells)
{
    const auto lines = vtkSmartPointer<vtkCellArray>::New();
    const auto owners = vtkSmartPointer<vtkIdList>::New();
    std::set<std::pair<vtkIdType, vtkIdType>> known;
    vtkIdType count = 0;
    const vtkIdType* corners = nullptr;
    for (vtkIdType cell = 0; cell < cells->GetNumberOfCells(); ++cell) {
        cells->GetCellPoints(cell, count, corners);
        const int type = cells->GetCellType(cell);
        const bool isLine = type == VTK_LINE || type == VTK_POLY_LINE;
        for (vtkIdType i = 0; i < (isLine ? count - 1 : count); ++i) {
            const auto [from, to] = std::minmax(corners[i], corners[(i + 1) % count]);
            if (from != to && known.insert({from, to}).second) {
                lines->InsertNextCell({from, to});
                owners->InsertNextId(cell);
            }
        }
    }
    auto edges = vtkSmartPointer<vtkPolyData>::New();
    edges->SetPoints(cells->GetPoints());
    edges->SetLines(lines);
    edges->GetPointData()->ShallowCopy(cells->GetPointData());
    edges->GetCellData()->CopyAllocate(cells->GetCellData(), owners->GetNumberOfIds());
    for (vtkIdType i = 0; i < owners->GetNumberOfIds(); ++i) {
        edges->GetCellData()->CopyData(cells->GetCellData(), owners->GetId(i), i);
    }
    return edges;
}

} // namespace

MeshLayer::MeshLayer(vtkRenderer* renderer)
    : LinePatternLayer(renderer, 2.0)
{
    actor().GetProperty()->SetRepresentationToWireframe();
}

void MeshLayer::update(ZoneSurface& surface, const MeshStyle& style, const ContourValues* colors,
                       const LayerContext& context)
{
    setShown(style.isShown && !surface.isEmpty());
    if (!isShown()) {
        return;
    }
    const bool isColored = style.color.contourGroup > 0 && colors && colors->field.values;
    const Source source{surface.revision(), isColored ? colors->field.values : nullptr,
                        style.pattern != LinePattern_Solid};
    if (source != m_source) {
        m_source = source;
        const vtkSmartPointer<vtkPolyData> cells = isColored ? surface.withValues(surface.surface(), colors->field)
                                                             : vtkSmartPointer<vtkPolyData>(surface.surface());
        setLineGeometry(source.hasPattern ? edgesOf(cells) : cells);
    }
    setPattern(style.pattern, context.pixels(style.patternLength));
    setColor(style.color.color);
    if (isColored) {
        setColors(colors->colors, colors->field.location == ValueLocation_CellCentered);
    }
    setLines(context.lineWidth(style.thickness));
}

} // namespace vantrix::view
