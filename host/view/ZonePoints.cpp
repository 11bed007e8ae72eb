#include "view/ZonePoints.h"

#include "kernel/BlankedZone.h"
#include "view/ZoneSurface.h"

#include <vtkCellData.h>
#include <vtkDataSet.h>
#include <vtkIdList.h>
#include <vtkIdTypeArray.h>
#include <vtkPointSet.h>
#include <vtkPolyData.h>
#include <vtkSmartPointer.h>
#include <vtkStructuredGrid.h>

#include <algorithm>

namespace vantrix::view {
namespace {

/* The numbers in an array, each once and in order. */
std::vector<long long> distinct(vtkIdTypeArray* numbers)
{
    std::vector<long long> result;
    if (numbers) {
        result.assign(numbers->GetPointer(0), numbers->GetPointer(0) + numbers->GetNumberOfValues());
        std::sort(result.begin(), result.end());
        result.erase(std::unique(result.begin(), result.end()), result.end());
    }
    return result;
}

/* Whether every skip-th index, from the first on, has the point or cell of a number. */
class Skip
{
public:
    Skip(vtkDataSet* geometry, const std::array<long, 3>& skip, bool areCells)
        : m_skip(skip)
    {
        if (auto* grid = vtkStructuredGrid::SafeDownCast(geometry)) {
            std::array<int, 3> size{};
            grid->GetDimensions(size.data());
            for (std::size_t i = 0; i < 3; ++i) {
                m_size[i] = areCells ? std::max(1, size[i] - 1) : size[i];
            }
            m_isOrdered = true;
        }
    }

    bool takes(long long number) const
    {
        if (!m_isOrdered) {
            return number % m_skip[0] == 0;
        }
        return number % m_size[0] % m_skip[0] == 0 && number / m_size[0] % m_size[1] % m_skip[1] == 0 &&
               number / (m_size[0] * m_size[1]) % m_skip[2] == 0;
    }

private:
    std::array<long, 3> m_skip;
    std::array<long long, 3> m_size{1, 1, 1};
    bool m_isOrdered = false;
};

std::array<double, 3> centre(vtkDataSet* geometry, vtkIdType cell, vtkIdList* corners)
{
    geometry->GetCellPoints(cell, corners);
    std::array<double, 3> sum{};
    std::array<double, 3> point{};
    for (vtkIdType i = 0; i < corners->GetNumberOfIds(); ++i) {
        geometry->GetPoint(corners->GetId(i), point.data());
        for (std::size_t axis = 0; axis < 3; ++axis) {
            sum[axis] += point[axis] / double(corners->GetNumberOfIds());
        }
    }
    return sum;
}

} // namespace

bool ZonePoints::areCells() const
{
    return m_selection.points == PointsToPlot_SurfaceCellCenters || m_selection.points == PointsToPlot_AllCellCenters;
}

void ZonePoints::set(ZoneSurface& surface, const PointSelection& selection)
{
    if (m_revision > 0 && m_surfaceRevision == surface.revision() && m_selection == selection) {
        return;
    }
    m_geometry = surface.geometry();
    m_selection = selection;
    m_surfaceRevision = surface.revision();
    ++m_revision;
    m_numbers.clear();
    m_places.clear();
    if (!m_geometry) {
        return;
    }
    const bool isAll = selection.points == PointsToPlot_AllNodes || selection.points == PointsToPlot_AllCellCenters;
    std::vector<long long> numbers;
    if (isAll) {
        numbers.resize(std::size_t(areCells() ? m_geometry->GetNumberOfCells() : m_geometry->GetNumberOfPoints()));
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            numbers[i] = static_cast<long long>(i);
        }
    } else {
        numbers = distinct(areCells() ? surface.cellNumbers() : surface.pointNumbers());
    }
    const auto isBlanked = [&, blanked = surface.blanked()](std::size_t number) {
        return blanked && (areCells() ? blanked->cells : blanked->points)[number] != 0;
    };
    const Skip skip(m_geometry, selection.skip, areCells());
    const auto corners = vtkSmartPointer<vtkIdList>::New();
    for (const long long number : numbers) {
        // Below 0 are points where a cell was trimmed.
        if (number < 0 || !skip.takes(number) || isBlanked(std::size_t(number))) {
            continue;
        }
        m_numbers.push_back(number);
        std::array<double, 3> place{};
        if (areCells()) {
            place = centre(m_geometry, number, corners);
        } else {
            m_geometry->GetPoint(number, place.data());
        }
        m_places.push_back(place);
    }
}

std::vector<double> ZonePoints::values(const kernel::FieldArray& field) const
{
    std::vector<double> result(m_numbers.size(), 0.0);
    if (!field.values) {
        return result;
    }
    const bool isSame = areCells() == (field.location == ValueLocation_CellCentered);
    const auto around = vtkSmartPointer<vtkIdList>::New();
    for (std::size_t i = 0; i < m_numbers.size(); ++i) {
        if (isSame) {
            result[i] = field.values->GetComponent(m_numbers[i], 0);
            continue;
        }
        if (areCells()) {
            m_geometry->GetCellPoints(m_numbers[i], around);
        } else {
            m_geometry->GetPointCells(m_numbers[i], around);
        }
        for (vtkIdType k = 0; k < around->GetNumberOfIds(); ++k) {
            result[i] += field.values->GetComponent(around->GetId(k), 0) / double(around->GetNumberOfIds());
        }
    }
    return result;
}

} // namespace vantrix::view
