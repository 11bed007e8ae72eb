#include "view/layers/RodRibbonLayer.h"

#include "view/IsoLines.h"
#include "view/ZoneSurface.h"
#include "view/layers/FloodLayer.h"

#include <vtkActor.h>
#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkLookupTable.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkProperty.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantrix::view {
namespace {

Point3 sum(const Point3& a, double factor, const Point3& b)
{
    return {a[0] + factor * b[0], a[1] + factor * b[1], a[2] + factor * b[2]};
}

Point3 cross(const Point3& a, const Point3& b)
{
    Point3 result{};
    vtkMath::Cross(a.data(), b.data(), result.data());
    return result;
}

/* Some direction that stands on another. */
Point3 anyAcross(const Point3& direction)
{
    const std::size_t axis = std::abs(direction[0]) < 0.6 ? 0 : 1;
    Point3 other{};
    other[axis] = 1.0;
    Point3 across = cross(direction, other);
    vtkMath::Normalize(across.data());
    return across;
}

/* Points, normals and values of surfaces that are drawn from one cross-section to the next. */
class Sweep
{
public:
    Sweep()
    {
        m_points->SetDataTypeToDouble();
        m_normals->SetNumberOfComponents(3);
        m_values->SetName(ZoneSurface::valuesName);
    }

    /* The next cross-section; those of a path have as many corners. */
    void begin() { m_before.clear(); }
    void section(const std::vector<Point3>& corners, const std::vector<Point3>& normals, double value, bool isClosed)
    {
        std::vector<vtkIdType> numbers;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            numbers.push_back(m_points->InsertNextPoint(corners[i].data()));
            m_normals->InsertNextTuple(normals[i].data());
            m_values->InsertNextValue(static_cast<float>(value));
        }
        const std::size_t sides = m_before.empty() ? 0 : isClosed ? corners.size() : corners.size() - 1;
        for (std::size_t i = 0; i < sides; ++i) {
            const std::size_t next = (i + 1) % corners.size();
            m_polygons->InsertNextCell({m_before[i], m_before[next], numbers[next], numbers[i]});
        }
        m_before = std::move(numbers);
    }

    vtkSmartPointer<vtkPolyData> result(bool hasValues) const
    {
        auto surface = vtkSmartPointer<vtkPolyData>::New();
        surface->SetPoints(m_points);
        surface->SetPolys(m_polygons);
        surface->GetPointData()->SetNormals(m_normals);
        if (hasValues) {
            surface->GetPointData()->SetScalars(m_values);
        }
        return surface;
    }

private:
    vtkSmartPointer<vtkPoints> m_points = vtkSmartPointer<vtkPoints>::New();
    vtkSmartPointer<vtkFloatArray> m_normals = vtkSmartPointer<vtkFloatArray>::New();
    vtkSmartPointer<vtkFloatArray> m_values = vtkSmartPointer<vtkFloatArray>::New();
    vtkSmartPointer<vtkCellArray> m_polygons = vtkSmartPointer<vtkCellArray>::New();
    std::vector<vtkIdType> m_before;
};

void addRodSection(Sweep& sweep, const Point3& at, const Point3& along, const Point3& across, double radius,
                   long corners, double value)
{
    const Point3 other = cross(along, across);
    std::vector<Point3> places;
    std::vector<Point3> normals;
    for (long corner = 0; corner < corners; ++corner) {
        const double angle = 2.0 * std::numbers::pi * double(corner) / double(corners);
        normals.push_back(sum({std::cos(angle) * across[0], std::cos(angle) * across[1], std::cos(angle) * across[2]},
                              std::sin(angle), other));
        places.push_back(sum(at, radius, normals.back()));
    }
    sweep.section(places, normals, value, true);
}

void addRibbonSection(Sweep& sweep, const Point3& at, const Point3& along, const Point3& across, double halfWidth,
                      double twist, double value)
{
    const Point3 other = cross(along, across);
    const Point3 side = sum({std::cos(twist) * across[0], std::cos(twist) * across[1], std::cos(twist) * across[2]},
                            std::sin(twist), other);
    const Point3 normal = cross(along, side);
    sweep.section({sum(at, -halfWidth, side), sum(at, halfWidth, side)}, {normal, normal}, value, false);
}

} // namespace

RodRibbonLayer::Part::Part(vtkRenderer* renderer, double order)
    : PolyDataLayer(renderer, order)
{
    setPickable(false); // what is probed or placed with the mouse lies on what is behind it
}

void RodRibbonLayer::Part::place(const Placement& /*placement*/) {}

void RodRibbonLayer::Part::setMesh()
{
    actor().GetProperty()->SetRepresentationToWireframe();
}

RodRibbonLayer::RodRibbonLayer(vtkRenderer* renderer)
    : m_surface(renderer, 0.0)
    , m_mesh(renderer, 2.0)
    , m_lines(renderer, 3.0)
{
    m_surface.stepBack();
    m_mesh.setMesh();
}

void RodRibbonLayer::update(const StreamPaths& paths, const StreamtraceStyle& style, const PathColors* flood,
                            const PathColors* lines, const LayerContext& context)
{
    const RodRibbonStyle& looks = style.rodRibbon;
    bool isAny = false;
    for (std::size_t i = 0; i < paths.count(); ++i) {
        isAny = isAny || !paths.isLine(i);
    }
    isAny = isAny && style.isShown && style.hasPaths && context.isThreeD;
    const bool isFlooded = looks.contour.hasFlood() && flood;
    m_surface.setShown(isAny && (looks.shade.isShown || isFlooded));
    m_mesh.setShown(isAny && looks.mesh.isShown);
    m_lines.setShown(isAny && looks.contour.hasLines() && lines);
    if (!isAny) {
        return;
    }
    m_paths = &paths;
    const Source source{paths.revision(),
                        isFlooded ? flood->values : nullptr,
                        m_lines.isShown() ? lines->values : nullptr,
                        m_lines.isShown() ? lines->colors->levels : std::vector<double>(),
                        looks.width,
                        looks.rodCorners};
    m_isBuilt = m_isBuilt && source == m_source;
    m_source = source;
    const LightStyle& light = context.light;
    if (isFlooded) {
        m_surface.setColors({flood->colors->levels,
                             looks.contour.isLit && light.colorContrast < 1.0
                                 ? FloodLayer::contrastedTable(*flood->colors->table, light.colorContrast)
                                 : flood->colors->table,
                             {}},
                            false);
    } else {
        m_surface.setColor(looks.shade.isLit ? Part::contrasted(looks.shade.color, light.colorContrast)
                                             : looks.shade.color);
    }
    m_surface.setLighting(looks.lighting, looks.opacity, isFlooded ? looks.contour.isLit : looks.shade.isLit, context);
    m_mesh.setColor(looks.mesh.color.color);
    m_mesh.setLines(context.lineWidth(looks.mesh.thickness));
    m_lines.setColor(looks.contour.lineColor.color);
    // Alone, lines tell their values by colour.
    const bool isAlone = looks.contour.type == ContourType_Lines && looks.contour.lineColor.contourGroup == 0;
    if (m_lines.isShown() && (isAlone || looks.contour.lineColor.contourGroup == looks.contour.lineGroup)) {
        m_lines.setColors(*lines->colors, false);
    }
    m_lines.setLines(context.lineWidth(looks.contour.thickness));
}

vtkSmartPointer<vtkPolyData> RodRibbonLayer::surface(const Placement& placement, const PathNumbers* values) const
{
    const double halfWidth = 0.5 * m_source.width * std::abs(placement.scale[0]);
    Sweep sweep;
    for (std::size_t path = 0; path < m_paths->count(); ++path) {
        if (m_paths->isLine(path)) {
            continue;
        }
        std::vector<Point3> places;
        std::vector<std::size_t> numbers; /* of those points of the way that differ from the one before */
        for (std::size_t i = 0; i < m_paths->points(path).size(); ++i) {
            const Point3 place = placement.place(m_paths->points(path)[i]);
            if (places.empty() || vtkMath::Distance2BetweenPoints(places.back().data(), place.data()) > 0.0) {
                places.push_back(place);
                numbers.push_back(i);
            }
        }
        if (places.size() < 2) {
            continue;
        }
        const bool isRod = m_paths->streamtrace(path).type == Streamtrace_VolumeRod;
        const std::vector<double>& twists = m_paths->twists(path);
        Point3 across{};
        sweep.begin();
        for (std::size_t i = 0; i < places.size(); ++i) {
            const Point3& from = places[i > 0 ? i - 1 : 0];
            const Point3& to = places[std::min(i + 1, places.size() - 1)];
            Point3 along = sum(to, -1.0, from);
            vtkMath::Normalize(along.data());
            // The cross-section is carried along without turning about the way.
            if (i > 0) {
                across = sum(across, -vtkMath::Dot(across.data(), along.data()), along);
            }
            if (i == 0 || vtkMath::Normalize(across.data()) < 1e-9) {
                across = anyAcross(along);
            }
            const std::size_t number = numbers[i];
            const double value = values ? (*values)[path][number] : 0.0;
            if (isRod) {
                addRodSection(sweep, places[i], along, across, halfWidth, m_source.corners, value);
            } else {
                addRibbonSection(sweep, places[i], along, across, halfWidth,
                                 number < twists.size() ? twists[number] : 0.0, value);
            }
        }
    }
    return sweep.result(values);
}

void RodRibbonLayer::build(const Placement& placement)
{
    const vtkSmartPointer<vtkPolyData> swept = surface(placement, m_source.flood);
    m_surface.setGeometry(swept);
    m_mesh.setGeometry(swept);
    if (m_lines.isShown()) {
        m_lines.setGeometry(isoLines(m_source.lines == m_source.flood ? swept : surface(placement, m_source.lines),
                                     false, m_source.levels));
    }
}

void RodRibbonLayer::place(const Placement& placement)
{
    const auto all = parts();
    const bool isShown = std::ranges::any_of(all, [](const Part* part) { return part->isShown(); });
    const bool isSamePlace = placement.scale == m_placement.scale && placement.shift == m_placement.shift;
    if (isShown && !placement.isFlat() && (!m_isBuilt || !isSamePlace)) {
        build(placement);
        m_placement = placement;
        m_isBuilt = true;
    }
}

long RodRibbonLayer::geometryCount() const
{
    long count = 0;
    for (const Part* part : parts()) {
        count += part->geometryCount();
    }
    return count;
}

} // namespace vantrix::view
