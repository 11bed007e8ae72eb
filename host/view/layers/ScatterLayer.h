#pragma once

#include "view/layers/SymbolLayer.h"

#include <vtkDataArray.h>

namespace vantrix::view {

class ZonePoints;

/* Symbols at the points of a zone. */
class ScatterLayer : public SymbolLayer
{
public:
    explicit ScatterLayer(vtkRenderer* renderer)
        : SymbolLayer(renderer, 6.0)
    {}

    /* `lineColors` and `fillColors` colour where the style has contour groups for that; `sizes` is the field that sizes
     * the symbols. */
    void update(const ZonePoints& points, const ScatterStyle& style, const kernel::FieldArray& sizes,
                const ContourValues* lineColors, const ContourValues* fillColors, const LayerContext& context);

private:
    struct Source
    {
        unsigned long points = 0;
        vtkSmartPointer<vtkDataArray> sizes;
        vtkSmartPointer<vtkDataArray> lineColors;
        vtkSmartPointer<vtkDataArray> fillColors;
        bool operator==(const Source&) const = default;
    };

    Source m_source;
};

} // namespace vantrix::view
