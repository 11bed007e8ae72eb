#pragma once

#include "view/layers/PolyDataLayer.h"

namespace vantrix::view {

class ZoneSurface;

/* The surface in one colour: shaded, or what hides the lines behind a mesh. */
class ShadeLayer : public PolyDataLayer
{
public:
    explicit ShadeLayer(vtkRenderer* renderer)
        : PolyDataLayer(renderer, 0.0)
    {
        stepBack();
    }

    /* `isCovered` tells that a flood is drawn over it. */
    void update(ZoneSurface& surface, const ZoneStyle& style, bool isCovered, const LayerContext& context);
};

} // namespace vantrix::view
