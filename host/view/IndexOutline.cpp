#include "view/IndexOutline.h"

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
#include <vector>

namespace vantrix::view {
namespace {

/* The first and the last index; one where they are the same. */
std::vector<vtkIdType> ends(vtkIdType size)
{
    return size > 1 ? std::vector<vtkIdType>{0, size - 1} : std::vector<vtkIdType>{0};
}

} // namespace

vtkSmartPointer<vtkPolyData> indexOutline(vtkStructuredGrid& grid, const char* pointNumbers, const char* cellNumbers)
{
    std::array<int, 3> dimensions{};
    grid.GetDimensions(dimensions.data());
    const GridIndex size{dimensions[0], dimensions[1], dimensions[2]};
    const GridIndex cells{std::max<vtkIdType>(1, size[0] - 1), std::max<vtkIdType>(1, size[1] - 1),
                          std::max<vtkIdType>(1, size[2] - 1)};
    const auto coordinates = vtkSmartPointer<vtkPoints>::New();
    const auto segments = vtkSmartPointer<vtkCellArray>::New();
    const auto points = vtkSmartPointer<vtkIdTypeArray>::New();
    const auto owners = vtkSmartPointer<vtkIdTypeArray>::New();
    coordinates->SetDataType(grid.GetPoints()->GetDataType());
    points->SetName(pointNumbers);
    owners->SetName(cellNumbers);
    const auto addLine = [&](GridIndex index, std::size_t along) {
        for (index[along] = 0; index[along] < size[along]; ++index[along]) {
            std::array<double, 3> place{};
            grid.GetPoints()->GetPoint(numberAt(index, size), place.data());
            const vtkIdType point = coordinates->InsertNextPoint(place.data());
            points->InsertNextValue(numberAt(index, size));
            if (index[along] > 0) {
                segments->InsertNextCell({point - 1, point});
                GridIndex owner = index;
                --owner[along];
                for (std::size_t axis = 0; axis < 3; ++axis) {
                    owner[axis] = std::min(owner[axis], cells[axis] - 1);
                }
                owners->InsertNextValue(numberAt(owner, cells));
            }
        }
    };
    for (std::size_t along = 0; along < 3; ++along) {
        const std::size_t across = (along + 1) % 3;
        const std::size_t up = (along + 2) % 3;
        if (size[along] < 2) {
            continue;
        }
        for (const vtkIdType atAcross : ends(size[across])) {
            for (const vtkIdType atUp : ends(size[up])) {
                GridIndex index{};
                index[across] = atAcross;
                index[up] = atUp;
                addLine(index, along);
            }
        }
    }
    auto outline = vtkSmartPointer<vtkPolyData>::New();
    outline->SetPoints(coordinates);
    outline->SetLines(segments);
    outline->GetPointData()->AddArray(points);
    outline->GetCellData()->AddArray(owners);
    return outline;
}

} // namespace vantrix::view
