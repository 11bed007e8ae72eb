#include "view/layers/ArrowheadLayer.h"

#include <vtkActor.h>
#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr double halfWidth = 0.35; /* of the length */

} // namespace

ArrowheadLayer::ArrowheadLayer(vtkRenderer* renderer)
    : PolyDataLayer(renderer, 9.0)
{
    setPickable(false);
}

void ArrowheadLayer::update(const StreamPaths& paths, const StreamtraceStyle& style, const PathColors* colors,
                            const LayerContext& context)
{
    setShown(style.isShown && style.hasPaths && style.line.hasArrowheads && paths.count() > 0);
    if (!isShown()) {
        return;
    }
    m_paths = &paths;
    const Source source{paths.revision(), colors ? colors->values : nullptr, context.pixels(style.line.arrowheadSize),
                        context.pixels(style.line.arrowheadSpacing)};
    m_isBuilt = m_isBuilt && source == m_source;
    m_source = source;
    setColor(style.line.color.color);
    if (colors) {
        setColors(*colors->colors, false);
    }
    setLines(1.0F);
}

void ArrowheadLayer::build(const Placement& placement)
{
    const auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetDataTypeToDouble();
    const auto triangles = vtkSmartPointer<vtkCellArray>::New();
    const auto values = vtkSmartPointer<vtkFloatArray>::New();
    const double size = m_source.size * placement.pixelSize;
    const double spacing = m_source.spacing * placement.pixelSize;
    const auto add = [&](const Point3& from, const Point3& tip, double value) {
        Point3 along{};
        Point3 side{};
        vtkMath::Subtract(tip.data(), from.data(), along.data());
        vtkMath::Normalize(along.data());
        vtkMath::Cross(along.data(), placement.toViewer.data(), side.data());
        if (vtkMath::Normalize(side.data()) < 1e-9) {
            return; // seen from its end
        }
        std::array<vtkIdType, 3> corners{};
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const double back = i == 0 ? 0.0 : size;
            const double out = i == 0 ? 0.0 : i == 1 ? halfWidth * size : -halfWidth * size;
            corners[i] = points->InsertNextPoint(tip[0] - back * along[0] + out * side[0],
                                                 tip[1] - back * along[1] + out * side[1],
                                                 tip[2] - back * along[2] + out * side[2]);
            values->InsertNextValue(static_cast<float>(value));
        }
        triangles->InsertNextCell(3, corners.data());
    };
    for (std::size_t path = 0; path < m_paths->count(); ++path) {
        if (!m_paths->isLine(path)) {
            continue;
        }
        double next = 0.5 * spacing;
        double length = 0.0;
        Point3 before{};
        for (std::size_t i = 0; i < m_paths->points(path).size(); ++i) {
            Point3 place = placement.place(m_paths->points(path)[i]);
            place[2] = placement.isFlat() ? 0.0 : place[2];
            if (i > 0) {
                length += std::sqrt(vtkMath::Distance2BetweenPoints(before.data(), place.data()));
                if (length >= next) {
                    add(before, place, m_source.values ? (*m_source.values)[path][i] : 0.0);
                    next = (std::floor(length / spacing - 0.5) + 1.5) * spacing;
                }
            }
            before = place;
        }
    }
    const auto heads = vtkSmartPointer<vtkPolyData>::New();
    heads->SetPoints(points);
    heads->SetPolys(triangles);
    if (m_source.values) {
        heads->GetPointData()->SetScalars(values);
    }
    setGeometry(heads);
}

void ArrowheadLayer::place(const Placement& placement)
{
    actor().SetPosition(0.0, 0.0, placement.isFlat() ? order() : 0.0);
    if (isShown() && (!m_isBuilt || placement != m_placement)) {
        build(placement);
        m_placement = placement;
        m_isBuilt = true;
    }
}

} // namespace vantrix::view
