#include "view/layers/EdgeLayer.h"

#include "view/ZoneSurface.h"

#include <vtkPolyData.h>

namespace vantrix::view {

void EdgeLayer::update(ZoneSurface& surface, const EdgeStyle& style, bool isFlooded, const LayerContext& context)
{
    // The edge of a curve is the curve, and would hide its colours.
    const bool hidesFlood = isFlooded && surface.surface()->GetNumberOfPolys() == 0;
    setShown(style.isShown && !surface.isEmpty() && !hidesFlood);
    if (isShown()) {
        setGeometry(surface.edges(style.type));
        setColor(style.color);
        setLines(context.lineWidth(style.thickness));
    }
}

} // namespace vantrix::view
