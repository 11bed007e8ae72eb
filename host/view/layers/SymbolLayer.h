#pragma once

#include "view/layers/GlyphLayer.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace vantrix::view {

/* Symbols at places of a plot: what fills them and their outlines. */
class SymbolLayer
{
public:
    /* The outlines are one order above what fills the symbols. */
    SymbolLayer(vtkRenderer* renderer, double order);

    /* Whether the mouse finds the symbols; it does at first. */
    void setPickable(bool isPickable);

    void place(const Placement& placement);

    const FieldLayer& fill() const { return m_fill; }
    const FieldLayer& outline() const { return m_outline; }

protected:
    /* Shape, colours and size (in pixels) of the symbols; `lines` and `fill` are the colours of their values, or null.
     * Returns `isShown`. */
    bool setLooks(const ScatterStyle& style, bool isShown, const ContourColors* lines, const ContourColors* fill,
                  double size, const LayerContext& context);

    /* Where the symbols are, and for each the values that colour its outline and its inside, and a factor for its size;
     * all but the places may be empty. */
    void setPoints(const std::vector<std::array<double, 3>>& places, const std::vector<double>& lineValues,
                   const std::vector<double>& fillValues, const std::vector<double>& sizes);

private:
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
    std::optional<Shape> m_shape;
};

} // namespace vantrix::view
