#include "view/ZoneSurface.h"

#include "kernel/BlankedZone.h"
#include "kernel/probe/ShownPlanes.h"
#include "view/FeatureEdges.h"
#include "view/IndexOutline.h"
#include "view/IndexPlanes.h"
#include "view/SurfaceThinning.h"

#include <vtkAppendPolyData.h>
#include <vtkCell.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkDataSet.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPointSet.h>
#include <vtkPolyData.h>
#include <vtkPolyDataNormals.h>
#include <vtkStructuredGrid.h>
#include <vtkThreshold.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>
#include <array>
#include <cmath>
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

vtkSmartPointer<vtkIdTypeArray> numbers(const char* name, vtkIdType count)
{
    auto numbers = vtkSmartPointer<vtkIdTypeArray>::New();
    numbers->SetName(name);
    numbers->SetNumberOfValues(count);
    std::iota(numbers->GetPointer(0), numbers->GetPointer(0) + count, vtkIdType{0});
    return numbers;
}

/* The lines from point to point of an ordered curve, which filters for surfaces leave away. */
vtkSmartPointer<vtkPolyData> curve(vtkStructuredGrid& grid)
{
    auto result = vtkSmartPointer<vtkPolyData>::New();
    const auto lines = vtkSmartPointer<vtkCellArray>::New();
    for (vtkIdType number = 0; number + 1 < grid.GetNumberOfPoints(); ++number) {
        lines->InsertNextCell({number, number + 1});
    }
    result->SetPoints(grid.GetPoints());
    result->SetLines(lines);
    result->GetPointData()->AddArray(numbers(pointNumbersName, grid.GetNumberOfPoints()));
    result->GetCellData()->AddArray(numbers(cellNumbersName, lines->GetNumberOfCells()));
    return result;
}

/* Every face of every cell, those between two cells once for each. */
vtkSmartPointer<vtkPolyData> everyFace(vtkUnstructuredGrid& grid)
{
    auto faces = vtkSmartPointer<vtkPolyData>::New();
    const auto polygons = vtkSmartPointer<vtkCellArray>::New();
    const auto cells = vtkSmartPointer<vtkIdTypeArray>::New();
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
    faces->GetPointData()->AddArray(numbers(pointNumbersName, grid.GetNumberOfPoints()));
    faces->GetCellData()->AddArray(cells);
    return faces;
}

/* Whether an ordered zone goes on in one direction alone. */
bool isCurve(vtkStructuredGrid& grid)
{
    std::array<int, 3> size{};
    grid.GetDimensions(size.data());
    return std::ranges::count_if(size, [](int points) { return points > 1; }) == 1;
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

vtkSmartPointer<vtkPolyData> joined(vtkPolyData* one, vtkPolyData* other)
{
    const auto filter = vtkSmartPointer<vtkAppendPolyData>::New();
    filter->AddInputData(one);
    filter->AddInputData(other);
    filter->Update();
    return filter->GetOutput();
}

vtkSmartPointer<vtkFloatArray> gathered(vtkDataArray* values, vtkIdTypeArray* numbers,
                                        const std::vector<SurfaceCut>& cuts)
{
    const vtkIdType available = values->GetNumberOfTuples();
    std::vector<double> atCuts;
    const auto valueAt = [&](vtkIdType number) {
        if (number < 0) {
            return atCuts[static_cast<std::size_t>(-1 - number)];
        }
        return number < available ? values->GetComponent(number, 0) : 0.0;
    };
    for (const SurfaceCut& cut : cuts) {
        atCuts.push_back(std::lerp(valueAt(cut.from), valueAt(cut.to), cut.at));
    }
    auto result = vtkSmartPointer<vtkFloatArray>::New();
    result->SetName(ZoneSurface::valuesName);
    const vtkIdType count = numbers->GetNumberOfTuples();
    result->SetNumberOfTuples(count);
    for (vtkIdType i = 0; i < count; ++i) {
        result->SetValue(i, static_cast<float>(valueAt(numbers->GetValue(i))));
    }
    return result;
}

/* The outer surface of the cells that are not blanked, those included that the blanked ones cover otherwise. */
vtkSmartPointer<vtkPolyData> exposedSurface(vtkDataSet* geometry, const std::vector<unsigned char>& areBlanked)
{
    const auto numbered = vtkSmartPointer<vtkDataSet>::Take(geometry->NewInstance());
    numbered->CopyStructure(geometry);
    numbered->GetPointData()->AddArray(numbers(pointNumbersName, geometry->GetNumberOfPoints()));
    numbered->GetCellData()->AddArray(numbers(cellNumbersName, geometry->GetNumberOfCells()));
    const auto blanked = vtkSmartPointer<vtkUnsignedCharArray>::New();
    blanked->SetNumberOfValues(geometry->GetNumberOfCells());
    std::ranges::copy(areBlanked, blanked->GetPointer(0));
    numbered->GetCellData()->SetScalars(blanked);
    const auto cells = vtkSmartPointer<vtkThreshold>::New();
    cells->SetInputData(numbered);
    cells->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_CELLS, vtkDataSetAttributes::SCALARS);
    cells->SetThresholdFunction(vtkThreshold::THRESHOLD_LOWER);
    cells->SetLowerThreshold(0.5);
    const auto filter = vtkSmartPointer<vtkDataSetSurfaceFilter>::New();
    filter->SetInputConnection(cells->GetOutputPort());
    filter->Update();
    return filter->GetOutput();
}

} // namespace

void ZoneSurface::set(vtkDataSet* geometry, const SurfaceSelection& selection, double keptPoints,
                      std::shared_ptr<const kernel::BlankedZone> blanked)
{
    if (m_geometry == geometry && m_selection == selection && m_keptPoints == keptPoints && m_blanked == blanked &&
        m_revision > 0) {
        return;
    }
    m_keptPoints = keptPoints;
    m_blanked = std::move(blanked);
    m_cuts.clear();
    m_geometry = geometry;
    m_selection = selection;
    m_surface = nullptr;
    m_litSurface = nullptr;
    m_edges.clear();
    ++m_revision;
}

vtkSmartPointer<vtkPolyData> ZoneSurface::wholeSurface() const
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
            return indexPlanes(*grid, m_selection, pointNumbersName, cellNumbersName, m_blanked.get());
        }
        vtkUnstructuredGrid* cells = vtkUnstructuredGrid::SafeDownCast(m_geometry);
        if (cells && m_selection.faces == SurfacesToPlot_EveryFace) {
            return everyFace(*cells);
        }
    }
    vtkStructuredGrid* ordered = vtkStructuredGrid::SafeDownCast(m_geometry);
    return ordered && isCurve(*ordered) ? curve(*ordered) : outerSurface(m_geometry);
}

vtkSmartPointer<vtkPolyData> ZoneSurface::makeSurface()
{
    if (m_blanked && m_geometry && m_selection.faces == SurfacesToPlot_ExposedFaces && isVolume(m_geometry)) {
        return exposedSurface(m_geometry, m_blanked->cells);
    }
    vtkSmartPointer<vtkPolyData> whole = wholeSurface();
    if (!m_blanked || whole->GetNumberOfCells() == 0) {
        return whole;
    }
    UnblankedSurface left = withoutBlanked(*whole, *m_blanked, pointNumbersName, cellNumbersName);
    m_cuts = std::move(left.cuts);
    return left.surface;
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
        edges = makeEdges(type);
    }
    return edges;
}

vtkSmartPointer<vtkPolyData> ZoneSurface::makeEdges(EdgeType_e type)
{
    const bool hasBorders = type != EdgeType_Creases;
    const bool hasCreases = type != EdgeType_Borders;
    vtkStructuredGrid* grid = vtkStructuredGrid::SafeDownCast(m_geometry);
    // Blanking is no end of the zone: it shortens edges and makes no new ones.
    const vtkSmartPointer<vtkPolyData> whole = m_blanked ? wholeSurface() : vtkSmartPointer<vtkPolyData>(surface());
    vtkSmartPointer<vtkPolyData> edges = featureEdges(*whole, hasBorders && !grid, hasCreases);
    if (grid && hasBorders) {
        // An ordered zone ends where its indices do, even where the surface closes on itself.
        edges = joined(indexOutline(*grid, pointNumbersName, cellNumbersName), edges);
    }
    const bool isBlanked = m_blanked && edges->GetNumberOfCells() > 0;
    return isBlanked ? withoutBlanked(*edges, *m_blanked, pointNumbersName, cellNumbersName).surface : edges;
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
    auto result = vtkSmartPointer<vtkPolyData>::New();
    result->ShallowCopy(surface);
    const bool isNodal = field.location == ValueLocation_Nodal;
    vtkDataSetAttributes* attributes = isNodal ? static_cast<vtkDataSetAttributes*>(result->GetPointData())
                                               : static_cast<vtkDataSetAttributes*>(result->GetCellData());
    auto* numbers = vtkIdTypeArray::SafeDownCast(attributes->GetArray(isNodal ? pointNumbersName : cellNumbersName));
    if (numbers && field.values) {
        attributes->SetScalars(gathered(field.values, numbers, m_cuts));
    }
    return result;
}

} // namespace vantrix::view
