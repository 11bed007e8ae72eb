#include "view/ZoneSurface.h"

#include "kernel/probe/ShownPlanes.h"
#include "view/IndexPlanes.h"
#include "view/SurfaceThinning.h"

#include <vtkAppendPolyData.h>
#include <vtkCell.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkDataSet.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkFeatureEdges.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPointSet.h>
#include <vtkPolyData.h>
#include <vtkPolyDataNormals.h>
#include <vtkStructuredGrid.h>
#include <vtkStructuredGridOutlineFilter.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>
#include <array>
#include <numeric>

namespace vantrix::view {
namespace {

constexpr auto pointNumbersName = "vxPoint";
constexpr auto cellNumbersName = "vxCell";
constexpr double featureAngle = 35.0;

vtkSmartPointer<vtkPolyData> outerSurface(vtkDataSet* geometry)
{
    const auto filter = vtkSmartPointer<vtkDataSetSurfaceFilter>::New();
    filter->SetInputData(geometry);
    filter->PassThroughPointIdsOn();
    filter->PassThroughCellIdsOn();
    filter->SetOriginalPointIdsName(pointNumbersName);
    filter->SetOriginalCellIdsName(cellNumbersName);
    filter->Update();
    return filter->GetOutput();
}

/* Every face of every cell, those between two cells once for each. */
vtkSmartPointer<vtkPolyData> everyFace(vtkUnstructuredGrid& grid)
{
    const auto faces = vtkSmartPointer<vtkPolyData>::New();
    const auto polygons = vtkSmartPointer<vtkCellArray>::New();
    const auto points = vtkSmartPointer<vtkIdTypeArray>::New();
    const auto cells = vtkSmartPointer<vtkIdTypeArray>::New();
    points->SetName(pointNumbersName);
    points->SetNumberOfValues(grid.GetNumberOfPoints());
    std::iota(points->GetPointer(0), points->GetPointer(0) + grid.GetNumberOfPoints(), vtkIdType{0});
    cells->SetName(cellNumbersName);
    for (vtkIdType number = 0; number < grid.GetNumberOfCells(); ++number) {
        vtkCell* cell = grid.GetCell(number);
        for (int face = 0; face < cell->GetNumberOfFaces(); ++face) {
            polygons->InsertNextCell(cell->GetFace(face)->GetPointIds());
            cells->InsertNextValue(number);
        }
    }
    faces->SetPoints(grid.GetPoints());
    faces->SetPolys(polygons);
    faces->GetPointData()->AddArray(points);
    faces->GetCellData()->AddArray(cells);
    return faces;
}

bool isVolume(vtkDataSet* geometry)
{
    if (auto* grid = vtkStructuredGrid::SafeDownCast(geometry)) {
        std::array<int, 3> size{};
        grid->GetDimensions(size.data());
        return std::all_of(size.begin(), size.end(), [](int points) { return points > 1; });
    }
    return geometry->GetNumberOfCells() > 0 && geometry->GetCell(0)->GetCellDimension() == 3;
}

vtkSmartPointer<vtkPolyData> withNormals(vtkPolyData* surface, bool isOrdered)
{
    if (surface->GetNumberOfPolys() == 0) {
        return surface;
    }
    const auto filter = vtkSmartPointer<vtkPolyDataNormals>::New();
    filter->SetInputData(surface);
    filter->SetFeatureAngle(featureAngle);
    filter->SplittingOn();
    filter->SetConsistency(!isOrdered);
    filter->Update();
    return filter->GetOutput();
}

vtkSmartPointer<vtkPolyData> featureEdges(vtkPolyData* surface, bool hasBorders, bool hasCreases)
{
    const auto filter = vtkSmartPointer<vtkFeatureEdges>::New();
    filter->SetInputData(surface);
    filter->SetFeatureAngle(featureAngle);
    filter->SetBoundaryEdges(hasBorders);
    filter->SetFeatureEdges(hasCreases);
    filter->NonManifoldEdgesOff();
    filter->ManifoldEdgesOff();
    filter->ColoringOff();
    filter->Update();
    return filter->GetOutput();
}

/* An ordered zone ends where its indices do, even where the surface closes on itself. */
vtkSmartPointer<vtkPolyData> outline(vtkStructuredGrid* grid)
{
    const auto filter = vtkSmartPointer<vtkStructuredGridOutlineFilter>::New();
    filter->SetInputData(grid);
    filter->Update();
    return filter->GetOutput();
}

vtkSmartPointer<vtkPolyData> joined(vtkPolyData* one, vtkPolyData* other)
{
    const auto filter = vtkSmartPointer<vtkAppendPolyData>::New();
    filter->AddInputData(one);
    filter->AddInputData(other);
    filter->Update();
    return filter->GetOutput();
}

vtkSmartPointer<vtkFloatArray> gathered(vtkDataArray* values, vtkIdTypeArray* numbers)
{
    const auto result = vtkSmartPointer<vtkFloatArray>::New();
    result->SetName(ZoneSurface::valuesName);
    const vtkIdType count = numbers->GetNumberOfTuples();
    result->SetNumberOfTuples(count);
    const vtkIdType available = values->GetNumberOfTuples();
    for (vtkIdType i = 0; i < count; ++i) {
        const vtkIdType from = numbers->GetValue(i);
        result->SetValue(i, from >= 0 && from < available ? static_cast<float>(values->GetComponent(from, 0)) : 0.0F);
    }
    return result;
}

} // namespace

void ZoneSurface::set(vtkDataSet* geometry, const SurfaceSelection& selection, double keptPoints)
{
    if (m_geometry == geometry && m_selection == selection && m_keptPoints == keptPoints && m_revision > 0) {
        return;
    }
    m_keptPoints = keptPoints;
    m_geometry = geometry;
    m_selection = selection;
    m_surface = nullptr;
    m_litSurface = nullptr;
    m_edges.clear();
    ++m_revision;
}

vtkSmartPointer<vtkPolyData> ZoneSurface::makeSurface() const
{
    const bool isSelected = m_geometry && isVolume(m_geometry);
    if (!m_geometry || m_geometry->GetNumberOfPoints() == 0 ||
        (isSelected && m_selection.faces == SurfacesToPlot_None)) {
        return vtkSmartPointer<vtkPolyData>::New();
    }
    if (isSelected) {
        vtkStructuredGrid* grid = vtkStructuredGrid::SafeDownCast(m_geometry);
        if (grid && (kernel::hasPlanes(m_selection.faces, 0) || kernel::hasPlanes(m_selection.faces, 1) ||
                     kernel::hasPlanes(m_selection.faces, 2))) {
            return indexPlanes(*grid, m_selection, pointNumbersName, cellNumbersName);
        }
        vtkUnstructuredGrid* cells = vtkUnstructuredGrid::SafeDownCast(m_geometry);
        if (cells && m_selection.faces == SurfacesToPlot_EveryFace) {
            return everyFace(*cells);
        }
    }
    return outerSurface(m_geometry);
}

vtkPolyData* ZoneSurface::surface()
{
    if (!m_surface) {
        m_surface = makeSurface();
        if (m_keptPoints < 1.0) {
            m_surface = thinned(m_surface, m_keptPoints);
        }
    }
    return m_surface;
}

bool ZoneSurface::isEmpty()
{
    return surface()->GetNumberOfCells() == 0;
}

vtkPolyData* ZoneSurface::litSurface()
{
    if (!m_litSurface) {
        m_litSurface = withNormals(surface(), vtkStructuredGrid::SafeDownCast(m_geometry) != nullptr);
    }
    return m_litSurface;
}

vtkPolyData* ZoneSurface::edges(EdgeType_e type)
{
    vtkSmartPointer<vtkPolyData>& edges = m_edges[type];
    if (!edges) {
        const bool hasBorders = type != EdgeType_Creases;
        const bool hasCreases = type != EdgeType_Borders;
        vtkStructuredGrid* grid = vtkStructuredGrid::SafeDownCast(m_geometry);
        edges = featureEdges(surface(), hasBorders && !grid, hasCreases);
        if (grid && hasBorders) {
            edges = joined(outline(grid), edges);
        }
    }
    return edges;
}

vtkIdTypeArray* ZoneSurface::pointNumbers()
{
    return vtkIdTypeArray::SafeDownCast(surface()->GetPointData()->GetArray(pointNumbersName));
}

vtkIdTypeArray* ZoneSurface::cellNumbers()
{
    return vtkIdTypeArray::SafeDownCast(surface()->GetCellData()->GetArray(cellNumbersName));
}

vtkSmartPointer<vtkPolyData> ZoneSurface::withValues(vtkPolyData* surface, const kernel::FieldArray& field) const
{
    const auto result = vtkSmartPointer<vtkPolyData>::New();
    result->ShallowCopy(surface);
    const bool isNodal = field.location == ValueLocation_Nodal;
    vtkDataSetAttributes* attributes = isNodal ? static_cast<vtkDataSetAttributes*>(result->GetPointData())
                                               : static_cast<vtkDataSetAttributes*>(result->GetCellData());
    auto* numbers = vtkIdTypeArray::SafeDownCast(attributes->GetArray(isNodal ? pointNumbersName : cellNumbersName));
    if (numbers && field.values) {
        attributes->SetScalars(gathered(field.values, numbers));
    }
    return result;
}

} // namespace vantrix::view
