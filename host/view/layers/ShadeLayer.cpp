#include "view/layers/ShadeLayer.h"

#include "view/ZoneSurface.h"

#include <vtkActor.h>
#include <vtkPolyData.h>
#include <vtkProperty.h>

namespace vantrix::view {

void ShadeLayer::update(ZoneSurface& surface, const ZoneStyle& style, bool isCovered, const LayerContext& context)
{
    // A zone of curves or points has no surface to shade; its mesh shows it instead.
    const bool hidesMesh = style.mesh.isShown && style.mesh.type == MeshType_HiddenLine;
    setShown((style.shade.isShown || hidesMesh) && !isCovered && !surface.isEmpty());
    if (isShown()) {
        setGeometry(surface.litSurface());
        setLighting(style.lighting, style.opacity, style.shade.isShown && style.shade.isLit, context);
        const bool isLit = style.shade.isLit && context.isThreeD;
        const QColor color = isLit ? contrasted(style.shade.color, context.light.colorContrast) : style.shade.color;
        setColor(style.shade.isShown ? color : QColor(Qt::white));
        actor().GetProperty()->SetLineWidth(context.lineWidth(style.mesh.thickness));
    }
}

} // namespace vantrix::view
