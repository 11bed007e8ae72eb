#include "view/IndexPlanes.h"

#include "kernel/BlankedZone.h"
#include "kernel/probe/ShownPlanes.h"
#include "view/GridIndex.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkStructuredGrid.h>

#include <algorithm>
#include <array>

namespace vantrix::view {
namespace {

class PlaneBuilder
{
public:
    PlaneBuilder(vtkStructuredGrid& grid, const char* pointNumbers, const char* cellNumbers,
                 const kernel::BlankedZone* blanked)
        : m_grid(grid)
        , m_blanked(blanked)
    {
        std::array<int, 3> size{};
        grid.GetDimensions(size.data());
        std::copy(size.begin(), size.end(), m_points.begin());
        std::transform(m_points.begin(), m_points.end(), m_cells.begin(),
                       [](vtkIdType points) { return std::max<vtkIdType>(1, points - 1); });
        m_pointNumbers->SetName(pointNumbers);
        m_cellNumbers->SetName(cellNumbers);
        m_coordinates->SetDataType(grid.GetPoints()->GetDataType());
    }

    void addPlane(std::size_t axis, vtkIdType at)
    {
        const std::size_t across = (axis + 1) % 3;
        const std::size_t up = (axis + 2) % 3;
        const vtkIdType first = m_coordinates->GetNumberOfPoints();
        GridIndex index{};
        index[axis] = at;
        for (index[up] = 0; index[up] < m_points[up]; ++index[up]) {
            for (index[across] = 0; index[across] < m_points[across]; ++index[across]) {
                const vtkIdType point = numberAt(index, m_points);
                std::array<double, 3> place{};
                m_grid.GetPoints()->GetPoint(point, place.data());
                m_coordinates->InsertNextPoint(place.data());
                m_pointNumbers->InsertNextValue(point);
            }
        }
        index[axis] = std::min(at, m_cells[axis] - 1);
        const vtkIdType row = m_points[across];
        for (index[up] = 0; index[up] + 1 < m_points[up]; ++index[up]) {
            for (index[across] = 0; index[across] + 1 < m_points[across]; ++index[across]) {
                const vtkIdType corner = first + index[up] * row + index[across];
                m_quads->InsertNextCell({corner, corner + 1, corner + 1 + row, corner + row});
                m_cellNumbers->InsertNextValue(owner(index, axis, at));
            }
        }
    }

    vtkIdType planeCount(std::size_t axis) const { return m_points[axis]; }

    vtkSmartPointer<vtkPolyData> result() const
    {
        auto planes = vtkSmartPointer<vtkPolyData>::New();
        planes->SetPoints(m_coordinates);
        planes->SetPolys(m_quads);
        planes->GetPointData()->AddArray(m_pointNumbers);
        planes->GetCellData()->AddArray(m_cellNumbers);
        return planes;
    }

private:
    bool isBlanked(const GridIndex& cell) const
    {
        return m_blanked && m_blanked->cells[static_cast<std::size_t>(numberAt(cell, m_cells))];
    }

    /* The cell of a face in a plane: one that is drawn, if there is. */
    vtkIdType owner(const GridIndex& behind, std::size_t axis, vtkIdType plane) const
    {
        GridIndex before = behind;
        before[axis] = std::max<vtkIdType>(0, plane - 1);
        return numberAt(isBlanked(behind) && !isBlanked(before) ? before : behind, m_cells);
    }

    vtkStructuredGrid& m_grid;
    const kernel::BlankedZone* m_blanked;
    GridIndex m_points{};
    GridIndex m_cells{};
    vtkSmartPointer<vtkPoints> m_coordinates = vtkSmartPointer<vtkPoints>::New();
    vtkSmartPointer<vtkCellArray> m_quads = vtkSmartPointer<vtkCellArray>::New();
    vtkSmartPointer<vtkIdTypeArray> m_pointNumbers = vtkSmartPointer<vtkIdTypeArray>::New();
    vtkSmartPointer<vtkIdTypeArray> m_cellNumbers = vtkSmartPointer<vtkIdTypeArray>::New();
};

} // namespace

vtkSmartPointer<vtkPolyData> indexPlanes(vtkStructuredGrid& grid, const SurfaceSelection& selection,
                                         const char* pointNumbers, const char* cellNumbers,
                                         const kernel::BlankedZone* blanked)
{
    PlaneBuilder builder(grid, pointNumbers, cellNumbers, blanked);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!kernel::hasPlanes(selection.faces, axis)) {
            continue;
        }
        const IndexRange range = selection.faces == SurfacesToPlot_EveryFace ? IndexRange{} : selection.planes[axis];
        const vtkIdType count = builder.planeCount(axis);
        const vtkIdType last = range.last > 0 ? std::min<vtkIdType>(range.last, count) : count;
        for (vtkIdType plane = std::max(1L, range.first); plane <= last; plane += std::max(1L, range.skip)) {
            builder.addPlane(axis, plane - 1);
        }
    }
    return builder.result();
}

} // namespace vantrix::view
