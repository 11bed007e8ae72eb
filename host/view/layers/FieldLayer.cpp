#include "view/layers/FieldLayer.h"

#include <vtkActor.h>
#include <vtkLookupTable.h>
#include <vtkMapper.h>
#include <vtkPropCollection.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkShaderProperty.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace vantrix::view {

float LayerContext::lineWidth(double percent) const
{
    return static_cast<float>(std::max(leastWidth, percent * pixelsPerPercent));
}

std::array<double, 3> Placement::place(const std::array<double, 3>& point) const
{
    return {point[0] * scale[0] + shift[0], point[1] * scale[1] + shift[1], point[2] * scale[2] + shift[2]};
}

FieldLayer::FieldLayer(vtkRenderer* renderer, vtkSmartPointer<vtkMapper> mapper, double order)
    : m_renderer(renderer)
    , m_mapper(std::move(mapper))
    , m_actor(vtkSmartPointer<vtkActor>::New())
    , m_order(order)
{
    m_mapper->ScalarVisibilityOff();
    m_mapper->SetResolveCoincidentTopologyToPolygonOffset();
    m_mapper->SetRelativeCoincidentTopologyLineOffsetParameters(0.0, -2.0 * order);
    m_mapper->SetRelativeCoincidentTopologyPointOffsetParameter(-2.0 * order);
    m_mapper->SetRelativeCoincidentTopologyPolygonOffsetParameters(0.0, -2.0 * order);
    m_actor->SetMapper(m_mapper);
    m_actor->VisibilityOff();
}

FieldLayer::~FieldLayer()
{
    if (m_isAdded) {
        m_renderer->RemoveActor(m_actor);
    }
}

void FieldLayer::place(const Placement& placement)
{
    // A flat plot has no depth of its own; its layers lie above each other.
    const bool isFlat = placement.isFlat();
    m_actor->SetScale(placement.scale[0], placement.scale[1], isFlat ? 1.0 : placement.scale[2]);
    m_actor->SetPosition(placement.shift[0], placement.shift[1], isFlat ? m_order : placement.shift[2]);
}

bool FieldLayer::isProp(const vtkProp* prop) const
{
    return m_actor == prop;
}

void FieldLayer::setPickable(bool isPickable)
{
    m_actor->SetPickable(isPickable);
}

bool FieldLayer::shownBounds(std::array<double, 6>& bounds) const
{
    const double* drawn = isShown() ? m_actor->GetBounds() : nullptr;
    if (!drawn || drawn[0] > drawn[1]) {
        return false;
    }
    std::copy_n(drawn, bounds.size(), bounds.begin());
    return true;
}

vtkActor& FieldLayer::actor() const
{
    return *m_actor;
}

void FieldLayer::setShown(bool isShown)
{
    // Layers never shown stay away, and AddActor() would look through all actors for each that comes.
    if (isShown && !m_isAdded) {
        m_renderer->GetViewProps()->AddItem(m_actor);
        m_actor->AddConsumer(m_renderer);
        m_isAdded = true;
    }
    m_actor->SetVisibility(isShown);
}

bool FieldLayer::isShown() const
{
    return m_actor->GetVisibility() != 0;
}

void FieldLayer::setColor(const QColor& color)
{
    m_mapper->ScalarVisibilityOff();
    m_actor->GetProperty()->SetColor(color.redF(), color.greenF(), color.blueF());
}

void FieldLayer::setOwnColors(bool byCell)
{
    m_mapper->ScalarVisibilityOn();
    if (byCell) {
        m_mapper->SetScalarModeToUseCellData();
    } else {
        m_mapper->SetScalarModeToUsePointData();
    }
    m_mapper->InterpolateScalarsBeforeMappingOff();
}

void FieldLayer::setColors(const ContourColors& colors, bool byCell)
{
    setOwnColors(byCell);
    m_mapper->SetInterpolateScalarsBeforeMapping(!byCell);
    m_mapper->SetLookupTable(colors.table);
    m_mapper->UseLookupTableScalarRangeOn();
}

QColor FieldLayer::contrasted(const QColor& color, double contrast)
{
    const auto part = [&](double channel) { return float(std::lerp(1.0, channel, contrast)); };
    return QColor::fromRgbF(part(color.redF()), part(color.greenF()), part(color.blueF()));
}

void FieldLayer::stepBack()
{
    // A pixel of a line beside the surface's own has the depth that the surface has up to two pixels further on. The
    // offsets that the mapper knows are the same for every slope.
    double factor = 0.0;
    double units = 0.0;
    m_mapper->GetCoincidentTopologyPolygonOffsetParameters(factor, units);
    const std::string fixed = std::to_string(std::lround(units)) + ".0 / 65000.0";
    vtkShaderProperty* shader = m_actor->GetShaderProperty();
    shader->AddFragmentShaderReplacement(
        "//VTK::UniformFlow::Impl", true,
        "float vxSlope = length(vec2(dFdx(gl_FragCoord.z), dFdy(gl_FragCoord.z)));\n//VTK::UniformFlow::Impl\n", false);
    shader->AddFragmentShaderReplacement("//VTK::Coincident::Impl", true,
                                         "gl_FragDepth = gl_FragCoord.z + min(2.0 * vxSlope, 0.02) + " + fixed + ";\n",
                                         false);
}

void FieldLayer::setLines(float width)
{
    m_actor->GetProperty()->LightingOff();
    m_actor->GetProperty()->SetLineWidth(width);
}

void FieldLayer::setLighting(LightingEffect_e effect, double opacity, bool isLit, const LayerContext& context)
{
    vtkProperty* property = m_actor->GetProperty();
    property->SetLighting(isLit && context.isThreeD);
    property->SetInterpolation(effect == LightingEffect_Paneled ? VTK_FLAT : VTK_GOURAUD);
    // Sides turned away from the light keep enough of their colour to be found in the legend.
    property->SetAmbient(0.25 + 0.75 * context.light.background);
    property->SetDiffuse(0.8 * context.light.intensity);
    // A highlight at full strength would hide the colour that is to be read.
    property->SetSpecular(context.light.hasHighlights ? 0.25 * context.light.highlight : 0.0);
    property->SetSpecularPower(1.0 + 0.5 * context.light.shininess);
    property->SetOpacity(opacity);
}

} // namespace vantrix::view
