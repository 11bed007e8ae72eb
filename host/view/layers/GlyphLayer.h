#pragma once

#include "view/layers/FieldLayer.h"

#include <array>
#include <vector>

class vtkGlyph3DMapper;
class vtkPolyData;

namespace vantrix::view {

/* One shape repeated at many points; turned towards the viewer where it is flat. */
class GlyphLayer : public FieldLayer
{
public:
    GlyphLayer(vtkRenderer* renderer, double order);

    void setShape(vtkPolyData* shape, bool isFlat);

    /* Places in the data, and for each a value that colours it and a size; either may be empty. */
    void setPoints(std::vector<std::array<double, 3>> places, const std::vector<double>& colors,
                   const std::vector<double>& sizes);

    /* The size of the shape in pixels; where points have sizes of their own, of size 1. */
    void setSize(double pixels) { m_size = pixels; }

    void place(const Placement& placement) override;

    void setColors(const ContourColors& colors);

    using FieldLayer::setColor;
    using FieldLayer::setLighting;
    using FieldLayer::setLines;
    using FieldLayer::setShown;

private:
    GlyphLayer(vtkRenderer* renderer, vtkSmartPointer<vtkGlyph3DMapper> mapper, double order);

    vtkSmartPointer<vtkGlyph3DMapper> m_mapper;
    vtkSmartPointer<vtkPolyData> m_shape;
    vtkSmartPointer<vtkPolyData> m_points;
    std::vector<std::array<double, 3>> m_places;
    Placement m_placement;
    double m_size = 1.0;
    bool m_isFlat = true;
    bool m_isTurned = false;
    bool m_arePlaced = false;
};

} // namespace vantrix::view
