#pragma once

#include "view/layers/PolyDataLayer.h"

namespace vantrix::view {

class ZoneSurface;

/* Where a zone ends, and where its surface is bent. */
class EdgeLayer : public PolyDataLayer
{
public:
    explicit EdgeLayer(vtkRenderer* renderer)
        : PolyDataLayer(renderer, 4.0)
    {}

    void update(ZoneSurface& surface, const EdgeStyle& style, bool isFlooded, const LayerContext& context);
};

} // namespace vantrix::view
