#include "view/layers/GlyphLayer.h"

#include <vtkActor.h>
#include <vtkFloatArray.h>
#include <vtkGlyph3DMapper.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

namespace vantrix::view {
namespace {

constexpr auto sizesName = "vxSize";

vtkSmartPointer<vtkFloatArray> array(const char* name, const std::vector<double>& values)
{
    auto result = vtkSmartPointer<vtkFloatArray>::New();
    result->SetName(name);
    result->SetNumberOfTuples(static_cast<vtkIdType>(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i) {
        result->SetValue(static_cast<vtkIdType>(i), static_cast<float>(values[i]));
    }
    return result;
}

/* A shape in the plane of X and Y, turned so that the viewer looks straight onto it. */
vtkSmartPointer<vtkPolyData> turnedToViewer(vtkPolyData* shape, const Placement& placement)
{
    std::array<double, 3> right{};
    vtkMath::Cross(placement.up.data(), placement.toViewer.data(), right.data());
    const auto points = vtkSmartPointer<vtkPoints>::New();
    std::array<double, 3> corner{};
    for (vtkIdType i = 0; i < shape->GetNumberOfPoints(); ++i) {
        shape->GetPoint(i, corner.data());
        std::array<double, 3> turned{};
        for (std::size_t axis = 0; axis < 3; ++axis) {
            turned[axis] = corner[0] * right[axis] + corner[1] * placement.up[axis];
        }
        points->InsertNextPoint(turned.data());
    }
    auto result = vtkSmartPointer<vtkPolyData>::New();
    result->ShallowCopy(shape);
    result->SetPoints(points);
    return result;
}

} // namespace

GlyphLayer::GlyphLayer(vtkRenderer* renderer, double order)
    : GlyphLayer(renderer, vtkSmartPointer<vtkGlyph3DMapper>::New(), order)
{}

GlyphLayer::GlyphLayer(vtkRenderer* renderer, vtkSmartPointer<vtkGlyph3DMapper> mapper, double order)
    : FieldLayer(renderer, mapper, order)
    , m_mapper(std::move(mapper))
    , m_points(vtkSmartPointer<vtkPolyData>::New())
{
    m_mapper->OrientOff();
    m_mapper->ScalingOn();
    m_mapper->SetInputData(m_points);
}

void GlyphLayer::setShape(vtkPolyData* shape, bool isFlat)
{
    m_shape = shape;
    m_mapper->SetSourceData(shape);
    m_isFlat = isFlat;
    m_isTurned = false;
}

void GlyphLayer::setPoints(std::vector<std::array<double, 3>> places, const std::vector<double>& colors,
                           const std::vector<double>& sizes)
{
    m_places = std::move(places);
    m_points = vtkSmartPointer<vtkPolyData>::New();
    if (!colors.empty()) {
        m_points->GetPointData()->SetScalars(array("vxColor", colors));
    }
    m_mapper->SetScaleModeToNoDataScaling();
    if (!sizes.empty()) {
        m_points->GetPointData()->AddArray(array(sizesName, sizes));
        m_mapper->SetScaleModeToScaleByMagnitude();
        m_mapper->SetScaleArray(sizesName);
    }
    m_mapper->SetInputData(m_points);
    m_arePlaced = false;
    countGeometry();
}

void GlyphLayer::setColors(const ContourColors& colors)
{
    FieldLayer::setColors(colors, false);
    // Colours between points would come from a texture, which repeated shapes do not have.
    m_mapper->InterpolateScalarsBeforeMappingOff();
}

void GlyphLayer::place(const Placement& placement)
{
    actor().SetPosition(0.0, 0.0, placement.isFlat() ? order() : 0.0);
    if (!isShown()) {
        return;
    }
    m_mapper->SetScaleFactor(m_size * placement.pixelSize);
    const bool isTurned = placement.toViewer != m_placement.toViewer || placement.up != m_placement.up;
    if (m_isFlat && (!m_isTurned || isTurned)) {
        m_mapper->SetSourceData(turnedToViewer(m_shape, placement));
        m_isTurned = true;
    }
    const bool isMoved = placement.scale != m_placement.scale || placement.shift != m_placement.shift;
    if (!m_arePlaced || isMoved) {
        const auto points = vtkSmartPointer<vtkPoints>::New();
        points->SetNumberOfPoints(static_cast<vtkIdType>(m_places.size()));
        for (std::size_t i = 0; i < m_places.size(); ++i) {
            points->SetPoint(static_cast<vtkIdType>(i), placement.place(m_places[i]).data());
        }
        m_points->SetPoints(points);
        m_arePlaced = true;
    }
    m_placement = placement;
}

} // namespace vantrix::view
