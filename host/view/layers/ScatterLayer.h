#pragma once

#include "view/layers/GlyphLayer.h"

#include <vtkDataArray.h>

#include <optional>
#include <string>

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

    /* What the glyphs show, and in which kind of plot. */
    struct Shape
    {
        GeomShape_e shape = GeomShape_Circle;
        std::string character;
        Font_e font = Font_Helvetica;
        bool isThreeD = false;
        bool operator==(const Shape&) const = default;
    };

    void setShape(const Shape& shape);

    GlyphLayer m_fill;
    GlyphLayer m_outline;
    Source m_source;
    std::optional<Shape> m_shape;
};

} // namespace vantrix::view
