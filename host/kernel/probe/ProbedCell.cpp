#include "kernel/probe/ProbedCell.h"

#include <vtkCell.h>
#include <vtkGenericCell.h>
#include <vtkIdList.h>
#include <vtkNew.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>

namespace vantrix::kernel {

namespace {

using Corner = std::array<long, 3>;

/* Going round a cell: the steps along its two first directions. */
constexpr long roundFirst[] = {0, 1, 1, 0};
constexpr long roundSecond[] = {0, 0, 1, 1};

/* The directions that the cells of a family extend in. */
std::vector<std::size_t> directions(const Zone& zone, IJKPlanes_e plane)
{
    std::vector<std::size_t> result;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (zone.dimensions()[axis] > 1 && static_cast<std::size_t>(plane) != axis) {
            result.push_back(axis);
        }
    }
    return result;
}

/* The corners of a box of one step along some directions, in VTK's order. */
std::vector<long> boxCorners(const Zone& zone, const Corner& first, const std::vector<std::size_t>& along)
{
    std::vector<long> corners;
    const std::size_t around = along.size() < 2 ? along.size() + 1 : 4;
    for (long layer = 0; layer < (along.size() == 3 ? 2 : 1); ++layer) {
        for (std::size_t i = 0; i < around; ++i) {
            Corner corner = first;
            if (!along.empty()) {
                corner[along[0]] += roundFirst[i];
            }
            if (along.size() > 1) {
                corner[along[1]] += roundSecond[i];
            }
            if (along.size() > 2) {
                corner[along[2]] += layer;
            }
            corners.push_back(pointNumber(zone, corner));
        }
    }
    return corners;
}

std::vector<long> pointsOf(vtkIdList* ids)
{
    std::vector<long> points;
    for (vtkIdType i = 0; i < ids->GetNumberOfIds(); ++i) {
        points.push_back(static_cast<long>(ids->GetId(i)));
    }
    return points;
}

/* The points of a face; a collapsed brick names some of them twice. */
std::vector<long> facePoints(vtkGenericCell& cell, int face)
{
    if (cell.GetCellDimension() == 1) {
        return {static_cast<long>(cell.GetPointId(face))};
    }
    std::vector<long> points =
        pointsOf(cell.GetCellDimension() == 3 ? cell.GetFace(face)->GetPointIds() : cell.GetEdge(face)->GetPointIds());
    std::vector<long> unique;
    for (const long point : points) {
        if (std::find(unique.begin(), unique.end(), point) == unique.end()) {
            unique.push_back(point);
        }
    }
    return unique;
}

int faceCount(vtkGenericCell& cell)
{
    switch (cell.GetCellDimension()) {
    case 3:
        return cell.GetNumberOfFaces();
    case 2:
        return cell.GetNumberOfEdges();
    case 1:
        return 2;
    default:
        return 0;
    }
}

} // namespace

std::array<long, 3> pointIndices(const Zone& zone, long point)
{
    const auto [iMax, jMax, kMax] = zone.dimensions();
    return {point % iMax, point / iMax % jMax, point / iMax / jMax};
}

long pointNumber(const Zone& zone, const std::array<long, 3>& indices)
{
    const auto [iMax, jMax, kMax] = zone.dimensions();
    return indices[0] + iMax * (indices[1] + jMax * indices[2]);
}

CellIndex orderedCellIndex(const Zone& zone, const std::array<long, 3>& first, IJKPlanes_e plane)
{
    CellIndex index;
    index.first = first;
    index.plane = plane;
    long stride = 1;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const long cells = std::max(zone.dimensions()[axis] - 1, 1L);
        index.storage += stride * std::min(first[axis], cells - 1);
        stride *= cells;
    }
    return index;
}

ProbedCell ProbedCell::ofOrdered(const Zone& zone, const CellIndex& index)
{
    ProbedCell cell;
    cell.number = pointNumber(zone, index.first) + 1;
    cell.index = index;
    const std::vector<std::size_t> along = directions(zone, index.plane);
    cell.corners = boxCorners(zone, index.first, along);
    for (const std::size_t axis : along) {
        std::vector<std::size_t> across = along;
        std::erase(across, axis);
        for (const long side : {0L, 1L}) {
            Corner first = index.first;
            first[axis] += side;
            Face face{boxCorners(zone, first, across)};
            Corner behind = index.first;
            behind[axis] += side == 0 ? -1 : 1;
            if (behind[axis] >= 0 && behind[axis] < zone.dimensions()[axis] - 1) {
                face.neighbor = pointNumber(zone, behind) + 1;
            }
            cell.faces.push_back(std::move(face));
        }
    }
    return cell;
}

ProbedCell ProbedCell::ofElement(vtkUnstructuredGrid& grid, long element)
{
    vtkNew<vtkGenericCell> generic;
    grid.GetCell(element, generic);
    ProbedCell cell;
    cell.number = element + 1;
    cell.index.storage = element;
    cell.corners = pointsOf(generic->GetPointIds());
    vtkNew<vtkIdList> shared;
    vtkNew<vtkIdList> neighbors;
    for (int number = 0; number < faceCount(*generic); ++number) {
        Face face{facePoints(*generic, number)};
        const auto needed = static_cast<std::size_t>(generic->GetCellDimension());
        if (face.points.size() >= needed) {
            shared->Reset();
            for (const long point : face.points) {
                shared->InsertNextId(point);
            }
            grid.GetCellNeighbors(element, shared, neighbors);
            if (neighbors->GetNumberOfIds() > 0) {
                face.neighbor = static_cast<long>(neighbors->GetId(0)) + 1;
            }
        }
        cell.faces.push_back(std::move(face));
    }
    return cell;
}

long ProbedCell::faceWith(const std::vector<long>& points) const
{
    const auto found = std::find_if(faces.begin(), faces.end(), [&](const Face& each) {
        return std::is_permutation(points.begin(), points.end(), each.points.begin(), each.points.end());
    });
    return found != faces.end() ? found - faces.begin() + 1 : 0;
}

} // namespace vantrix::kernel
