#include "view/SurfaceThinning.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIdList.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkTriangleFilter.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>
#include <vector>

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

/* The number of the bin that each point is in. */
std::vector<std::size_t> binsOf(vtkPolyData& surface, double most)
{
    const std::array<int, 3> bins = divisions(surface, most);
    std::array<double, 6> bounds{};
    surface.GetBounds(bounds.data());
    std::vector<std::size_t> numbers(static_cast<std::size_t>(surface.GetNumberOfPoints()));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        std::array<double, 3> point{};
        surface.GetPoint(static_cast<vtkIdType>(i), point.data());
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double length = bounds[2 * axis + 1] - bounds[2 * axis];
            const double part = length > 0.0 ? (point[axis] - bounds[2 * axis]) / length : 0.0;
            const auto last = static_cast<std::size_t>(bins[axis] - 1);
            numbers[i] = numbers[i] * (last + 1) + std::min(last, static_cast<std::size_t>(part * double(bins[axis])));
        }
    }
    return numbers;
}

std::size_t countDifferent(std::vector<std::size_t> numbers)
{
    std::ranges::sort(numbers);
    return static_cast<std::size_t>(std::unique(numbers.begin(), numbers.end()) - numbers.begin());
}

/* Of the points of each bin the one farthest out, so that a surface keeps its extent and its corners. */
std::unordered_map<std::size_t, vtkIdType> outermostOfBins(vtkPolyData& surface, const std::vector<std::size_t>& bins)
{
    std::array<double, 6> bounds{};
    surface.GetBounds(bounds.data());
    const auto distance = [&](vtkIdType number) {
        std::array<double, 3> point{};
        surface.GetPoint(number, point.data());
        double most = 0.0;
        double sum = 0.0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double half = 0.5 * (bounds[2 * axis + 1] - bounds[2 * axis]);
            const double out = half > 0.0 ? std::abs(point[axis] - bounds[2 * axis] - half) / half : 0.0;
            most = std::max(most, out);
            sum += out;
        }
        return most + 0.1 * sum;
    };
    std::unordered_map<std::size_t, vtkIdType> outermost;
    std::unordered_map<std::size_t, double> distances;
    for (std::size_t i = 0; i < bins.size(); ++i) {
        const auto point = static_cast<vtkIdType>(i);
        const double present = distance(point);
        const auto [farthest, isNew] = distances.try_emplace(bins[i], present);
        if (isNew || present > farthest->second) {
            farthest->second = present;
            outermost[bins[i]] = point;
        }
    }
    return outermost;
}

/* The triangles with one point of each bin in place of all its points; those within one or two bins are gone. */
vtkSmartPointer<vtkPolyData> clustered(vtkPolyData& triangles, const std::vector<std::size_t>& bins)
{
    const auto points = vtkSmartPointer<vtkPoints>::Take(vtkPoints::New(triangles.GetPoints()->GetDataType()));
    const auto polygons = vtkSmartPointer<vtkCellArray>::New();
    auto result = vtkSmartPointer<vtkPolyData>::New();
    vtkPointData& pointData = *result->GetPointData();
    vtkCellData& cellData = *result->GetCellData();
    pointData.CopyAllocate(triangles.GetPointData());
    cellData.CopyAllocate(triangles.GetCellData());

    std::vector<vtkIdType> kept(bins.size());
    std::unordered_map<std::size_t, vtkIdType> numberOf;
    for (const auto& [bin, point] : outermostOfBins(triangles, bins)) {
        const vtkIdType number = points->InsertNextPoint(triangles.GetPoint(point));
        pointData.CopyData(triangles.GetPointData(), point, number);
        numberOf.emplace(bin, number);
    }
    std::ranges::transform(bins, kept.begin(), [&](std::size_t bin) { return numberOf.at(bin); });
    const auto corner = vtkSmartPointer<vtkIdList>::New();
    for (vtkIdType triangle = 0; triangle < triangles.GetNumberOfPolys(); ++triangle) {
        triangles.GetPolys()->GetCellAtId(triangle, corner);
        std::array<vtkIdType, 3> corners{};
        for (std::size_t i = 0; i < 3; ++i) {
            corners[i] = kept[static_cast<std::size_t>(corner->GetId(static_cast<vtkIdType>(i)))];
        }
        if (corners[0] != corners[1] && corners[1] != corners[2] && corners[2] != corners[0]) {
            cellData.CopyData(triangles.GetCellData(), triangle, polygons->InsertNextCell(3, corners.data()));
        }
    }
    result->SetPoints(points);
    result->SetPolys(polygons);
    return result;
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
    std::vector<std::size_t> bins;
    for (int trial = 0; trial < 4; ++trial) {
        bins = binsOf(*surface, most);
        const auto count = static_cast<double>(countDifferent(bins));
        if (std::abs(count - wanted) < 0.1 * wanted) {
            break;
        }
        most *= std::sqrt(wanted / count);
    }
    const vtkSmartPointer<vtkPolyData> result = clustered(*triangles->GetOutput(), bins);
    return result->GetNumberOfPolys() > 0 ? result : vtkSmartPointer<vtkPolyData>(surface);
}

} // namespace vantrix::view
