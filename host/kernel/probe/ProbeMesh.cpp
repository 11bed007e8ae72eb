#include "kernel/probe/ProbeMesh.h"

#include "kernel/ZoneGrid.h"

#include <vtkCellData.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkIdList.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>
#include <limits>
#include <set>

namespace vantrix::kernel {

namespace {

/* Points of two zones that are no further apart, in sizes of a zone, are the same. */
constexpr double samePlace = 1e-6;

vtkSmartPointer<vtkDataSet> structureOf(vtkDataSet& grid)
{
    auto structure = vtkSmartPointer<vtkDataSet>::Take(grid.NewInstance());
    structure->CopyStructure(&grid);
    return structure;
}

vtkSmartPointer<vtkPolyData> surfaceOf(vtkDataSet* grid)
{
    vtkNew<vtkDataSetSurfaceFilter> filter;
    filter->SetInputData(grid);
    filter->PassThroughPointIdsOn();
    filter->PassThroughCellIdsOn();
    filter->Update();
    return filter->GetOutput();
}

vtkSmartPointer<vtkDataSet> firstLayerOf(const Zone& zone, vtkDataSet* grid)
{
    const auto [iMax, jMax, kMax] = zone.dimensions();
    auto* source = vtkPointSet::SafeDownCast(grid);
    const auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetDataType(source->GetPoints()->GetDataType());
    points->InsertPoints(0, iMax * jMax, 0, source->GetPoints());
    const auto layer = vtkSmartPointer<vtkStructuredGrid>::New();
    layer->SetDimensions(static_cast<int>(iMax), static_cast<int>(jMax), 1);
    layer->SetPoints(points);
    return layer;
}

/* The cells of a shape that are not blanked, over the same points, and their numbers in the shape. */
struct LeftCells
{
    vtkSmartPointer<vtkUnstructuredGrid> shape = vtkSmartPointer<vtkUnstructuredGrid>::New();
    std::vector<long> numbers;
};

template<class IsBlanked>
LeftCells leftCells(vtkDataSet& shape, const IsBlanked& isBlanked)
{
    LeftCells left;
    auto* polyhedra = vtkUnstructuredGrid::SafeDownCast(&shape);
    vtkNew<vtkIdList> corners;
    left.shape->SetPoints(vtkPointSet::SafeDownCast(&shape)->GetPoints());
    left.shape->Allocate(shape.GetNumberOfCells());
    for (vtkIdType cell = 0; cell < shape.GetNumberOfCells(); ++cell) {
        if (isBlanked(static_cast<long>(cell))) {
            continue;
        }
        const int type = shape.GetCellType(cell);
        if (type == VTK_POLYHEDRON) {
            polyhedra->GetFaceStream(cell, corners);
        } else {
            shape.GetCellPoints(cell, corners);
        }
        left.shape->InsertNextCell(type, corners);
        left.numbers.push_back(static_cast<long>(cell));
    }
    return left;
}

/* The family of the cells of an ordered zone that is no volume. */
IJKPlanes_e flatPlane(const Zone& zone)
{
    const auto [iMax, jMax, kMax] = zone.dimensions();
    if (kMax == 1) {
        return IJKPlanes_K;
    }
    if (jMax == 1) {
        return IJKPlanes_J;
    }
    return iMax == 1 ? IJKPlanes_I : IJKPlanes_Volume;
}

} // namespace

ProbeMesh::ProbeMesh(const Zone& zone, vtkDataSet& grid, Part part, std::shared_ptr<const BlankedZone> blanked)
    : m_part(part)
    , m_grid(structureOf(grid))
    , m_blanked(std::move(blanked))
{
    switch (part) {
    case Part::Cells:
        m_shape = m_grid;
        break;
    case Part::Surface:
    case Part::ExposedFaces:
        makeSurface();
        break;
    case Part::FirstLayer:
        m_shape = firstLayerOf(zone, m_grid);
        break;
    }
    if (m_blanked && part != Part::ExposedFaces) {
        leaveOutBlanked();
    }
    m_weights.resize(static_cast<std::size_t>(std::max(m_shape->GetMaxCellSize(), 8)));
}

void ProbeMesh::makeSurface()
{
    LeftCells left;
    const bool isExposed = m_blanked && m_part == Part::ExposedFaces;
    if (isExposed) {
        left = leftCells(*m_grid, [&](long cell) { return m_blanked->cells[static_cast<std::size_t>(cell)] != 0; });
    }
    const vtkSmartPointer<vtkPolyData> surface = surfaceOf(isExposed ? left.shape.Get() : m_grid.Get());
    m_pointNumbers = vtkIdTypeArray::FastDownCast(surface->GetPointData()->GetAbstractArray("vtkOriginalPointIds"));
    const auto* numbers = vtkIdTypeArray::FastDownCast(surface->GetCellData()->GetAbstractArray("vtkOriginalCellIds"));
    m_cellNumbers.emplace(static_cast<std::size_t>(surface->GetNumberOfCells()));
    for (std::size_t i = 0; i < m_cellNumbers->size(); ++i) {
        const auto number = static_cast<long>(numbers->GetValue(static_cast<vtkIdType>(i)));
        (*m_cellNumbers)[i] = isExposed ? left.numbers[static_cast<std::size_t>(number)] : number;
    }
    m_shape = surface;
}

void ProbeMesh::leaveOutBlanked()
{
    LeftCells left =
        leftCells(*m_shape, [&](long cell) { return m_blanked->cells[static_cast<std::size_t>(zoneCell(cell))] != 0; });
    for (long& number : left.numbers) {
        number = zoneCell(number);
    }
    m_cellNumbers = std::move(left.numbers);
    m_shape = left.shape;
}

/* Whether blanking leaves out just this part of a cell. */
bool ProbeMesh::isTrimmed(const MeshPlace& place) const
{
    const auto isLeftOut = [&](const std::vector<double>& kept) {
        double sum = 0.0;
        for (std::size_t i = 0; i < place.points.size(); ++i) {
            sum += place.weights[i] * kept[static_cast<std::size_t>(place.points[i])];
        }
        return sum <= 0.0;
    };
    return m_blanked && std::any_of(m_blanked->trimming.begin(), m_blanked->trimming.end(), isLeftOut);
}

bool ProbeMesh::isOf(vtkDataSet& grid, const BlankedZone* blanked) const
{
    return m_blanked.get() == blanked && haveSameShape(m_grid, &grid);
}

double ProbeMesh::size() const
{
    return m_shape->GetLength();
}

bool ProbeMesh::isNear(const Position& position, double margin) const
{
    const double* bounds = m_shape->GetBounds();
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!(position[axis] >= bounds[2 * axis] - margin && position[axis] <= bounds[2 * axis + 1] + margin)) {
            return false;
        }
    }
    return m_shape->GetNumberOfCells() > 0;
}

vtkStaticCellLocator& ProbeMesh::cellLocator()
{
    if (!m_cellLocator) {
        m_cellLocator = vtkSmartPointer<vtkStaticCellLocator>::New();
        m_cellLocator->SetDataSet(m_shape);
        m_cellLocator->BuildLocator();
    }
    return *m_cellLocator;
}

/* The points that are not blanked; m_leftPoints says which of the mesh they are. */
vtkSmartPointer<vtkDataSet> ProbeMesh::leftPoints()
{
    const auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetDataType(VTK_DOUBLE);
    m_leftPoints.clear();
    for (vtkIdType point = 0; point < m_shape->GetNumberOfPoints(); ++point) {
        if (!m_blanked->points[static_cast<std::size_t>(zonePoint(point))]) {
            points->InsertNextPoint(m_shape->GetPoint(point));
            m_leftPoints.push_back(point);
        }
    }
    const auto left = vtkSmartPointer<vtkPolyData>::New();
    left->SetPoints(points);
    return left;
}

vtkStaticPointLocator& ProbeMesh::pointLocator()
{
    if (!m_pointLocator) {
        m_pointLocator = vtkSmartPointer<vtkStaticPointLocator>::New();
        m_pointLocator->SetDataSet(m_blanked ? leftPoints() : m_shape);
        if (m_pointLocator->GetDataSet()->GetNumberOfPoints() > 0) { // which the locator complains of
            m_pointLocator->BuildLocator();
        }
    }
    return *m_pointLocator;
}

long ProbeMesh::zonePoint(vtkIdType meshPoint) const
{
    return static_cast<long>(m_pointNumbers ? m_pointNumbers->GetValue(meshPoint) : meshPoint);
}

long ProbeMesh::zoneCell(long meshCell) const
{
    return m_cellNumbers ? (*m_cellNumbers)[static_cast<std::size_t>(meshCell)] : meshCell;
}

/* Takes corners and weights from what was evaluated last. */
void ProbeMesh::take(long cell, MeshPlace& place)
{
    const auto count = static_cast<std::size_t>(m_cell->GetNumberOfPoints());
    place.cell = cell;
    place.points.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        place.points[i] = zonePoint(m_cell->GetPointId(static_cast<int>(i)));
    }
    place.weights.assign(m_weights.begin(), m_weights.begin() + static_cast<std::ptrdiff_t>(count));
}

bool ProbeMesh::evaluate(long cell, const Position& position, MeshPlace& place)
{
    Position parametric{};
    Position closest = position;
    int subCell = 0;
    double distance2 = 0.0;
    m_shape->GetCell(cell, m_cell);
    const int inside = m_cell->EvaluatePosition(position.data(), closest.data(), subCell, parametric.data(), distance2,
                                                m_weights.data());
    if (inside < 0) {
        return false;
    }
    take(cell, place);
    return inside == 1;
}

bool ProbeMesh::findInside(const Position& position, MeshPlace& place, long startCell)
{
    place.position = position;
    place.distance2 = 0.0;
    if (startCell >= 0 && startCell < m_shape->GetNumberOfCells() && evaluate(startCell, position, place)) {
        return !isTrimmed(place);
    }
    Position parametric{};
    Position at = position;
    const vtkIdType cell = cellLocator().FindCell(at.data(), 0.0, m_cell, parametric.data(), m_weights.data());
    if (cell >= 0) {
        take(static_cast<long>(cell), place);
        return !isTrimmed(place);
    }
    return false;
}

bool ProbeMesh::findClosest(const Position& position, double radius, MeshPlace& place)
{
    Position closest{};
    Position at = position;
    vtkIdType cell = -1;
    int subCell = 0;
    int inside = 0;
    double distance2 = 0.0;
    if (!cellLocator().FindClosestPointWithinRadius(at.data(), radius, closest.data(), m_cell, cell, subCell, distance2,
                                                    inside) ||
        cell < 0) {
        return false;
    }
    evaluate(static_cast<long>(cell), closest, place);
    place.position = closest;
    place.distance2 = distance2;
    return place.cell == cell && !isTrimmed(place);
}

/* Of some cells the one whose distance is least; -1 of none. */
long ProbeMesh::closestCell(vtkIdList& cells, const Position& position)
{
    long closest = cells.GetNumberOfIds() > 0 ? static_cast<long>(cells.GetId(0)) : -1;
    double least2 = std::numeric_limits<double>::infinity();
    for (const vtkIdType cell : cells) {
        Position on{};
        Position parametric{};
        int subCell = 0;
        double distance2 = 0.0;
        m_shape->GetCell(cell, m_cell);
        const int inside = m_cell->EvaluatePosition(position.data(), on.data(), subCell, parametric.data(), distance2,
                                                    m_weights.data());
        if (inside >= 0 && distance2 < least2) {
            least2 = distance2;
            closest = static_cast<long>(cell);
        }
    }
    return closest;
}

bool ProbeMesh::findNearestPoint(const Position& position, MeshPlace& place)
{
    vtkStaticPointLocator& locator = pointLocator();
    vtkIdType point = locator.GetDataSet()->GetNumberOfPoints() > 0 ? locator.FindClosestPoint(position.data()) : -1;
    if (point < 0) {
        return false;
    }
    if (m_blanked) {
        point = m_leftPoints[static_cast<std::size_t>(point)];
    }
    vtkNew<vtkIdList> cells;
    m_shape->GetPointCells(point, cells);
    place.cell = closestCell(*cells, position);
    place.points = {zonePoint(point)};
    place.weights = {1.0};
    m_shape->GetPoint(point, place.position.data());
    place.distance2 = 0.0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        place.distance2 += (place.position[axis] - position[axis]) * (place.position[axis] - position[axis]);
    }
    return true;
}

long ProbeMesh::cellWithCorners(const std::vector<Position>& corners)
{
    const double tolerance = samePlace * size();
    vtkNew<vtkIdList> points;
    for (const Position& corner : corners) {
        const vtkIdType point = isNear(corner, tolerance) ? pointLocator().FindClosestPoint(corner.data()) : -1;
        if (point < 0 ||
            vtkMath::Distance2BetweenPoints(corner.data(), m_shape->GetPoint(point)) > tolerance * tolerance) {
            return -1;
        }
        points->InsertUniqueId(point);
    }
    if (points->GetNumberOfIds() != static_cast<vtkIdType>(corners.size())) {
        return -1;
    }
    vtkNew<vtkIdList> cells;
    m_shape->GetCellNeighbors(-1, points, cells);
    return cells->GetNumberOfIds() > 0 ? static_cast<long>(cells->GetId(0)) : -1;
}

std::vector<Position> ProbeMesh::pointsAt(const std::vector<long>& points) const
{
    std::vector<Position> positions(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        m_grid->GetPoint(points[i], positions[i].data());
    }
    return positions;
}

CellIndex ProbeMesh::cellIndex(const Zone& zone, long meshCell) const
{
    CellIndex index;
    if (!zone.isOrdered()) {
        index.storage = zoneCell(meshCell);
        return index;
    }
    if (!isSurface()) {
        const long cell = zoneCell(meshCell);
        const auto [iMax, jMax, kMax] = zone.dimensions();
        const long iCells = std::max(iMax - 1, 1L);
        const long jCells = std::max(jMax - 1, 1L);
        const IJKPlanes_e plane = m_part == Part::FirstLayer ? IJKPlanes_K : flatPlane(zone);
        return orderedCellIndex(zone, {cell % iCells, cell / iCells % jCells, cell / iCells / jCells}, plane);
    }
    vtkNew<vtkIdList> corners;
    m_shape->GetCellPoints(meshCell, corners);
    std::array<long, 3> first = pointIndices(zone, zonePoint(corners->GetId(0)));
    std::array<long, 3> last = first;
    for (vtkIdType i = 1; i < corners->GetNumberOfIds(); ++i) {
        const std::array<long, 3> corner = pointIndices(zone, zonePoint(corners->GetId(i)));
        for (std::size_t axis = 0; axis < 3; ++axis) {
            first[axis] = std::min(first[axis], corner[axis]);
            last[axis] = std::max(last[axis], corner[axis]);
        }
    }
    const auto constant = std::find_if(std::begin(first), std::end(first), [&](const long& value) {
        return value == last[static_cast<std::size_t>(&value - first.data())];
    });
    return orderedCellIndex(zone, first, static_cast<IJKPlanes_e>(constant - first.begin()));
}

ProbedCell ProbeMesh::probedCell(const Zone& zone, long meshCell) const
{
    const CellIndex index = cellIndex(zone, meshCell);
    if (zone.isOrdered()) {
        return ProbedCell::ofOrdered(zone, index);
    }
    ProbedCell cell = ProbedCell::ofElement(*vtkUnstructuredGrid::SafeDownCast(m_grid), index.storage);
    if (isSurface()) {
        vtkNew<vtkIdList> corners;
        m_shape->GetCellPoints(meshCell, corners);
        std::vector<long> points;
        for (const vtkIdType corner : *corners) {
            points.push_back(zonePoint(corner));
        }
        cell.face = cell.faceWith(points);
    }
    return cell;
}

long ProbeMesh::findCell(const Zone& zone, const CellIndex& index) const
{
    if (isSurface()) {
        return -1; // a surface has its own numbers; a search is as quick as finding one of them
    }
    if (!m_cellNumbers) {
        return index.storage >= 0 && index.storage < zone.cellCount() ? index.storage : -1;
    }
    const auto found = std::lower_bound(m_cellNumbers->begin(), m_cellNumbers->end(), index.storage);
    return found != m_cellNumbers->end() && *found == index.storage ? static_cast<long>(found - m_cellNumbers->begin())
                                                                    : -1;
}

std::vector<long> ProbeMesh::cellsAround(long point)
{
    vtkNew<vtkIdList> cells;
    m_grid->GetPointCells(point, cells);
    std::vector<long> result;
    for (vtkIdType i = 0; i < cells->GetNumberOfIds(); ++i) {
        result.push_back(static_cast<long>(cells->GetId(i)));
    }
    return result;
}

long ProbeMesh::faceCount()
{
    if (m_faceCount >= 0) {
        return m_faceCount;
    }
    std::set<std::vector<vtkIdType>> faces;
    for (vtkIdType number = 0; number < m_grid->GetNumberOfCells(); ++number) {
        m_grid->GetCell(number, m_cell);
        const bool isVolume = m_cell->GetCellDimension() == 3;
        const int count = isVolume ? m_cell->GetNumberOfFaces() : m_cell->GetNumberOfEdges();
        for (int face = 0; face < count; ++face) {
            vtkIdList* ids = (isVolume ? m_cell->GetFace(face) : m_cell->GetEdge(face))->GetPointIds();
            std::vector<vtkIdType> points(ids->begin(), ids->end());
            std::sort(points.begin(), points.end());
            faces.insert(std::move(points));
        }
    }
    m_faceCount = static_cast<long>(faces.size());
    return m_faceCount;
}

} // namespace vantrix::kernel
