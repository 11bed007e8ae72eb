#include "view/layers/EdgeLayer.h"

#include "view/ZoneSurface.h"

#include <vtkPolyData.h>

namespace vantrix::view {

void EdgeLayer::update(ZoneSurface& surface, const EdgeStyle& style, const LayerContext& context)
{
    setShown(style.isShown && !surface.isEmpty());
    if (isShown()) {
        setGeometry(surface.edges(style.type));
        setColor(style.color);
        setLines(context.lineWidth(style.thickness));
    }
}

} // namespace vantrix::view
