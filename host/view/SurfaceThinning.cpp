#include "view/SurfaceThinning.h"

#include <vtkBinnedDecimation.h>
#include <vtkCellData.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkTriangleFilter.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace vantrix::view {

namespace {

/* As many bins along each axis as give cubes, the longest axis having `most`. */
std::array<int, 3> divisions(vtkPolyData& surface, double most)
{
    std::array<double, 6> bounds{};
    surface.GetBounds(bounds.data());
    const std::array<double, 3> lengths{bounds[1] - bounds[0], bounds[3] - bounds[2], bounds[5] - bounds[4]};
    const double longest = *std::max_element(lengths.begin(), lengths.end());
    std::array<int, 3> result{1, 1, 1};
    for (std::size_t axis = 0; axis < 3 && longest > 0.0; ++axis) {
        result[axis] = std::max(1, static_cast<int>(std::lround(most * lengths[axis] / longest)));
    }
    return result;
}

/* The filter makes single precision of whole numbers; numbers of points and cells stay such. */
void restoreNumbers(vtkDataSetAttributes& before, vtkDataSetAttributes& after)
{
    for (int i = 0; i < before.GetNumberOfArrays(); ++i) {
        auto* numbers = vtkIdTypeArray::SafeDownCast(before.GetArray(i));
        vtkDataArray* values = numbers ? after.GetArray(numbers->GetName()) : nullptr;
        if (values) {
            const auto restored = vtkSmartPointer<vtkIdTypeArray>::New();
            restored->DeepCopy(values);
            restored->SetName(numbers->GetName());
            after.AddArray(restored);
        }
    }
}

vtkSmartPointer<vtkPolyData> binned(vtkPolyData& triangles, double most)
{
    const std::array<int, 3> bins = divisions(triangles, most);
    const auto filter = vtkSmartPointer<vtkBinnedDecimation>::New();
    filter->SetInputData(&triangles);
    filter->SetPointGenerationModeToBinPoints();
    filter->ProduceCellDataOn();
    filter->AutoAdjustNumberOfDivisionsOff();
    filter->SetNumberOfDivisions(bins[0], bins[1], bins[2]);
    filter->Update();
    restoreNumbers(*triangles.GetPointData(), *filter->GetOutput()->GetPointData());
    restoreNumbers(*triangles.GetCellData(), *filter->GetOutput()->GetCellData());
    return filter->GetOutput();
}

} // namespace

vtkSmartPointer<vtkPolyData> thinned(vtkPolyData* surface, double keptPoints)
{
    const double wanted = keptPoints * static_cast<double>(surface->GetNumberOfPoints());
    if (surface->GetNumberOfPolys() == 0 || wanted < 4.0) {
        return surface;
    }
    const auto triangles = vtkSmartPointer<vtkTriangleFilter>::New();
    triangles->SetInputData(surface);
    triangles->PassVertsOff();
    triangles->PassLinesOff();
    triangles->Update();
    // The bins that a surface passes through grow with the square of their number along an axis.
    double most = std::sqrt(wanted);
    vtkSmartPointer<vtkPolyData> result;
    for (int trial = 0; trial < 4; ++trial) {
        result = binned(*triangles->GetOutput(), most);
        const auto count = static_cast<double>(std::max<vtkIdType>(1, result->GetNumberOfPoints()));
        if (std::abs(count - wanted) < 0.15 * wanted) {
            break;
        }
        most *= std::sqrt(wanted / count);
    }
    return result->GetNumberOfPolys() > 0 ? result : vtkSmartPointer<vtkPolyData>(surface);
}

} // namespace vantrix::view
