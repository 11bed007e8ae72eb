#include "view/layers/MeshLayer.h"

#include "view/ZoneSurface.h"

#include <vtkActor.h>
#include <vtkPolyData.h>
#include <vtkProperty.h>

namespace vantrix::view {

MeshLayer::MeshLayer(vtkRenderer* renderer)
    : PolyDataLayer(renderer, 2.0)
{
    actor().GetProperty()->SetRepresentationToWireframe();
}

void MeshLayer::update(ZoneSurface& surface, const MeshStyle& style, const ContourValues* colors,
                       const LayerContext& context)
{
    setShown(style.isShown && !surface.isEmpty());
    if (!isShown()) {
        return;
    }
    const bool isColored = style.color.contourGroup > 0 && colors && colors->field.values;
    const Source source{surface.revision(), isColored ? colors->field.values : nullptr};
    if (source != m_source) {
        m_source = source;
        setGeometry(isColored ? surface.withValues(surface.surface(), colors->field).Get() : surface.surface());
    }
    setColor(style.color.color);
    if (isColored) {
        setColors(colors->colors, colors->field.location == ValueLocation_CellCentered);
    }
    setLines(context.lineWidth(style.thickness));
}

} // namespace vantrix::view
