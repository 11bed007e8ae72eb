#include "view/FeatureEdges.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIdList.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkPolygon.h>

#include <array>
#include <cmath>
#include <vector>

namespace vantrix::view {
namespace {

using Normal = std::array<double, 3>;

std::vector<Normal> normalsOf(vtkPolyData& surface)
{
    std::vector<Normal> normals(static_cast<std::size_t>(surface.GetNumberOfCells()));
    const auto corners = vtkSmartPointer<vtkIdList>::New();
    for (std::size_t polygon = 0; polygon < normals.size(); ++polygon) {
        surface.GetCellPoints(static_cast<vtkIdType>(polygon), corners);
        vtkPolygon::ComputeNormal(surface.GetPoints(), static_cast<int>(corners->GetNumberOfIds()),
                                  corners->GetPointer(0), normals[polygon].data());
    }
    return normals;
}

} // namespace

// vtkFeatureEdges asks for memory that grows with the square of the number of points.
vtkSmartPointer<vtkPolyData> featureEdges(vtkPolyData& surface, bool hasBorders, bool hasCreases)
{
    const double sharpest = std::cos(vtkMath::RadiansFromDegrees(35.0));
    const auto polygons = vtkSmartPointer<vtkPolyData>::New();
    polygons->SetPoints(surface.GetPoints());
    polygons->SetPolys(surface.GetPolys());
    polygons->BuildLinks();
    const std::vector<Normal> normals = hasCreases ? normalsOf(*polygons) : std::vector<Normal>();

    const auto lines = vtkSmartPointer<vtkCellArray>::New();
    const auto owners = vtkSmartPointer<vtkIdList>::New();
    const auto corners = vtkSmartPointer<vtkIdList>::New();
    const auto others = vtkSmartPointer<vtkIdList>::New();
    const auto isFeature = [&](vtkIdType polygon, vtkIdType from, vtkIdType to) {
        polygons->GetCellEdgeNeighbors(polygon, from, to, others);
        if (others->GetNumberOfIds() != 1) {
            return others->GetNumberOfIds() == 0 && hasBorders;
        }
        const vtkIdType other = others->GetId(0);
        return hasCreases && other > polygon &&
               vtkMath::Dot(normals[static_cast<std::size_t>(polygon)].data(),
                            normals[static_cast<std::size_t>(other)].data()) <= sharpest;
    };
    for (vtkIdType polygon = 0; polygon < polygons->GetNumberOfCells(); ++polygon) {
        polygons->GetCellPoints(polygon, corners);
        const vtkIdType count = corners->GetNumberOfIds();
        for (vtkIdType i = 0; i < count; ++i) {
            const vtkIdType from = corners->GetId(i);
            const vtkIdType to = corners->GetId((i + 1) % count);
            if (isFeature(polygon, from, to)) {
                lines->InsertNextCell({from, to});
                owners->InsertNextId(polygon);
            }
        }
    }

    auto edges = vtkSmartPointer<vtkPolyData>::New();
    edges->SetPoints(surface.GetPoints());
    edges->SetLines(lines);
    edges->GetPointData()->ShallowCopy(surface.GetPointData());
    edges->GetCellData()->CopyAllocate(surface.GetCellData(), owners->GetNumberOfIds());
    // The arrays of a surface begin with its points and lines.
    const vtkIdType before = surface.GetNumberOfVerts() + surface.GetNumberOfLines();
    for (vtkIdType i = 0; i < owners->GetNumberOfIds(); ++i) {
        edges->GetCellData()->CopyData(surface.GetCellData(), before + owners->GetId(i), i);
    }
    return edges;
}

} // namespace vantrix::view
