#include "view/layers/VectorLayer.h"

#include "view/ZonePoints.h"
#include "view/ZoneSurface.h"

#include <vtkActor.h>
#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkPolyDataNormals.h>
#include <vtkProperty.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace vantrix::view {
namespace {

using Vector = std::array<double, 3>;

constexpr double longestByDefault = 6.0; /* per cent of the diagonal */

Vector along(const Vector& from, const Vector& direction, double length)
{
    return {from[0] + length * direction[0], from[1] + length * direction[1], from[2] + length * direction[2]};
}

Vector cross(const Vector& a, const Vector& b)
{
    Vector result{};
    vtkMath::Cross(a.data(), b.data(), result.data());
    return result;
}

/* Takes away the part of each vector that stands on the surface. */
void makeTangent(ZoneSurface& surface, const std::vector<Vector>& points, std::vector<Vector>& vectors)
{
    const auto filter = vtkSmartPointer<vtkPolyDataNormals>::New();
    filter->SetInputData(surface.surface());
    filter->SplittingOff();
    filter->Update();
    vtkDataArray* normals = filter->GetOutput()->GetPointData()->GetNormals();
    if (!normals) {
        return;
    }
    std::map<Vector, Vector> byPlace;
    for (vtkIdType i = 0; i < normals->GetNumberOfTuples(); ++i) {
        Vector place{};
        Vector normal{};
        filter->GetOutput()->GetPoint(i, place.data());
        normals->GetTuple(i, normal.data());
        byPlace[place] = normal;
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (const auto found = byPlace.find(points[i]); found != byPlace.end()) {
            vectors[i] = along(vectors[i], found->second, -vtkMath::Dot(vectors[i].data(), found->second.data()));
        }
    }
}

/* Arrows as lines and, for filled heads, triangles. */
class ArrowBuilder
{
public:
    ArrowBuilder(const VectorStyle& style, const VectorScaleStyle& scale, const Vector& toViewer)
        : m_style(style)
        , m_headFraction(scale.headFraction)
        , m_headSlope(std::tan(vtkMath::RadiansFromDegrees(scale.headAngle)))
        , m_toViewer(toViewer)
    {}

    /* `direction` is of length 1. */
    void add(const Vector& at, const Vector& direction, double length, const double* value)
    {
        const double back = m_style.type == VectorType_MidAtPoint    ? 0.5
                            : m_style.type == VectorType_TailAtPoint ? 0.0
                                                                     : 1.0;
        const Vector tail = along(at, direction, -back * length);
        const Vector tip = along(tail, direction, length);
        m_value = value;
        const double headLength = m_headFraction * length;
        const Vector neck = along(tip, direction, -headLength);
        if (m_style.type != VectorType_HeadOnly) {
            addLine({tail, m_style.head == ArrowheadStyle_Plain ? tip : neck});
        }
        Vector side = cross(direction, m_toViewer);
        if (headLength <= 0.0 || vtkMath::Normalize(side.data()) < 1e-9) {
            return;
        }
        const double halfWidth = headLength * m_headSlope;
        const Vector left = along(neck, side, halfWidth);
        const Vector right = along(neck, side, -halfWidth);
        switch (m_style.head) {
        case ArrowheadStyle_Plain:
            addLine({left, tip, right});
            break;
        case ArrowheadStyle_Hollow:
            addLine({left, tip, right, left});
            break;
        case ArrowheadStyle_Filled:
            m_triangles->InsertNextCell({point(left), point(tip), point(right)});
            break;
        }
    }

    vtkSmartPointer<vtkPolyData> result() const
    {
        auto arrows = vtkSmartPointer<vtkPolyData>::New();
        arrows->SetPoints(m_points);
        arrows->SetLines(m_lines);
        arrows->SetPolys(m_triangles);
        if (m_values->GetNumberOfValues() > 0) {
            arrows->GetPointData()->SetScalars(m_values);
        }
        return arrows;
    }

private:
    vtkIdType point(const Vector& place)
    {
        if (m_value) {
            m_values->InsertNextValue(static_cast<float>(*m_value));
        }
        return m_points->InsertNextPoint(place.data());
    }

    void addLine(std::initializer_list<Vector> places)
    {
        m_lines->InsertNextCell(static_cast<int>(places.size()));
        for (const Vector& place : places) {
            m_lines->InsertCellPoint(point(place));
        }
    }

    const VectorStyle& m_style;
    double m_headFraction;
    double m_headSlope;
    Vector m_toViewer;
    const double* m_value = nullptr;
    vtkSmartPointer<vtkPoints> m_points = vtkSmartPointer<vtkPoints>::New();
    vtkSmartPointer<vtkCellArray> m_lines = vtkSmartPointer<vtkCellArray>::New();
    vtkSmartPointer<vtkCellArray> m_triangles = vtkSmartPointer<vtkCellArray>::New();
    vtkSmartPointer<vtkFloatArray> m_values = vtkSmartPointer<vtkFloatArray>::New();
};

} // namespace

void VectorLayer::update(ZoneSurface& surface, const ZonePoints& points, const VectorStyle& style,
                         const std::array<kernel::FieldArray, 3>& parts, const ContourValues* colors,
                         const LayerContext& context)
{
    setShown(style.isShown && !points.places().empty());
    if (!isShown()) {
        return;
    }
    const bool isColored = style.color.contourGroup > 0 && colors && colors->field.values;
    const Source source{points.revision(),
                        {parts[0].values, parts[1].values, parts[2].values},
                        isColored ? colors->field.values : nullptr,
                        style.isTangent};
    if (source != m_source) {
        m_source = source;
        m_points = points.places();
        m_vectors.assign(m_points.size(), {});
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const std::vector<double> values = points.values(parts[axis]);
            for (std::size_t i = 0; i < values.size(); ++i) {
                m_vectors[i][axis] = std::isfinite(values[i]) ? values[i] : 0.0;
            }
        }
        if (style.isTangent) {
            makeTangent(surface, m_points, m_vectors);
        }
        m_colors = isColored ? points.values(colors->field) : std::vector<double>();
        m_longest = 0.0;
        for (const Vector& vector : m_vectors) {
            m_longest = std::max(m_longest, vtkMath::Norm(vector.data()));
        }
        m_isBuilt = false;
    }
    if (style != m_style || context.vectors != m_scale) {
        m_style = style;
        m_scale = context.vectors;
        m_isBuilt = false;
    }
    setColor(style.color.color);
    if (isColored) {
        setColors(colors->colors, false);
    }
    setLines(context.lineWidth(style.thickness));
}

void VectorLayer::build(const Placement& placement)
{
    ArrowBuilder arrows(m_style, m_scale, placement.toViewer);
    const double percent = placement.diagonal / 100.0;
    const double relative =
        m_scale.relativeLength > 0.0 ? m_scale.relativeLength : longestByDefault / std::max(m_longest, 1e-300);
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        Vector direction = m_vectors[i];
        const double size = vtkMath::Norm(direction.data());
        for (std::size_t axis = 0; axis < 3; ++axis) {
            // On a flat plot an arrow points the way its parts say, however long the units of the axes are.
            direction[axis] *= placement.isFlat() ? (axis == 2 ? 0.0 : std::copysign(1.0, placement.scale[axis]))
                                                  : placement.scale[axis];
        }
        if (vtkMath::Normalize(direction.data()) > 0.0) {
            const double length = percent * (m_scale.isRelative ? size * relative : m_scale.uniformLength);
            Vector place = placement.place(m_points[i]);
            if (placement.isFlat()) {
                place[2] = 0.0;
            }
            arrows.add(place, direction, length, m_colors.empty() ? nullptr : &m_colors[i]);
        }
    }
    setGeometry(arrows.result());
}

void VectorLayer::place(const Placement& placement)
{
    actor().SetPosition(0.0, 0.0, placement.isFlat() ? order() : 0.0);
    if (isShown() && (!m_isBuilt || placement != m_placement)) {
        build(placement);
        m_placement = placement;
        m_isBuilt = true;
    }
}

} // namespace vantrix::view
