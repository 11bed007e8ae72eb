#pragma once

#include "view/layers/LinePatternLayer.h"

#include <vtkDataArray.h>

#include <vector>

namespace vantrix::view {

class ZoneSurface;

/* Lines on the surface where a contour group's variable has the values of the levels. */
class ContourLineLayer : public LinePatternLayer
{
public:
    explicit ContourLineLayer(vtkRenderer* renderer)
        : LinePatternLayer(renderer, 3.0)
    {}

    /* `values` place the lines, `colors` colour them where the style has a contour group for that; null draws nothing.
     */
    void update(ZoneSurface& surface, const ContourStyle& style, const ContourValues* values,
                const ContourValues* colors, const LayerContext& context);

    /* The lines with their levels as scalars, and their chains; null while
     * nothing is shown. */
    vtkPolyData* lines() const { return isShown() ? lineGeometry().Get() : nullptr; }
    using LinePatternLayer::chains;

private:
    struct Source
    {
        unsigned long surface = 0;
        vtkSmartPointer<vtkDataArray> values;
        ValueLocation_e location = ValueLocation_Nodal;
        std::vector<double> levels;
        bool operator==(const Source&) const = default;
    };

    Source m_source;
};

} // namespace vantrix::view
