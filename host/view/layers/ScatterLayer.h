#pragma once

#include "view/layers/GlyphLayer.h"

#include <vtkDataArray.h>

namespace vantrix::view {

class ZonePoints;

/* Symbols at the points of a zone: what fills them and their outlines. */
class ScatterLayer
{
public:
    explicit ScatterLayer(vtkRenderer* renderer);

    /* `lineColors` and `fillColors` colour where the style has contour groups for that; `sizes` is the field that sizes
     * the symbols. */
    void update(const ZonePoints& points, const ScatterStyle& style, const kernel::FieldArray& sizes,
                const ContourValues* lineColors, const ContourValues* fillColors, const LayerContext& context);

    void place(const Placement& placement);

    const FieldLayer& fill() const { return m_fill; }
    const FieldLayer& outline() const { return m_outline; }

private:
    struct Source
    {
        unsigned long points = 0;
        vtkSmartPointer<vtkDataArray> sizes;
        vtkSmartPointer<vtkDataArray> lineColors;
        vtkSmartPointer<vtkDataArray> fillColors;
        bool operator==(const Source&) const = default;
    };

    void setShape(GeomShape_e shape, bool isThreeD);

    GlyphLayer m_fill;
    GlyphLayer m_outline;
    Source m_source;
    int m_shape = -1; /* what the glyphs show, and in which kind of plot; -1 before the first */
};

} // namespace vantrix::view
