#pragma once

#include "view/layers/LinePatternLayer.h"

#include <vtkDataArray.h>

namespace vantrix::view {

class ZoneSurface;

/* Lines along the cells of the surface. */
class MeshLayer : public LinePatternLayer
{
public:
    explicit MeshLayer(vtkRenderer* renderer);

    /* `colors` is what colours the lines where the style has a contour group for that. */
    void update(ZoneSurface& surface, const MeshStyle& style, const ContourValues* colors, const LayerContext& context);

private:
    struct Source
    {
        unsigned long surface = 0;
        vtkSmartPointer<vtkDataArray> values;
        bool hasPattern = false;
        bool operator==(const Source&) const = default;
    };

    Source m_source;
};

} // namespace vantrix::view
