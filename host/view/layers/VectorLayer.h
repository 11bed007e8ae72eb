#pragma once

#include "view/layers/PolyDataLayer.h"

#include <array>
#include <vector>

namespace vantrix::view {

class ZonePoints;
class ZoneSurface;

/* Arrows at the points of a zone. They are made in the world of the renderer, so that heads keep their shape whatever
 * the scales of the axes are; a change of scale or of the viewer's place makes them again. */
class VectorLayer : public PolyDataLayer
{
public:
    explicit VectorLayer(vtkRenderer* renderer)
        : PolyDataLayer(renderer, 5.0)
    {}

    /* `parts` are the fields along X, Y and Z; where one has no values, that part is 0. */
    void update(ZoneSurface& surface, const ZonePoints& points, const VectorStyle& style,
                const std::array<kernel::FieldArray, 3>& parts, const ContourValues* colors,
                const LayerContext& context);

    void place(const Placement& placement) override;

private:
    struct Source
    {
        unsigned long points = 0;
        std::array<vtkSmartPointer<vtkDataArray>, 3> parts;
        vtkSmartPointer<vtkDataArray> colors;
        bool isTangent = false;
        bool operator==(const Source&) const = default;
    };

    void build(const Placement& placement);

    Source m_source;
    VectorStyle m_style;
    VectorScaleStyle m_scale;
    Placement m_placement;
    std::vector<std::array<double, 3>> m_points;
    std::vector<std::array<double, 3>> m_vectors;
    std::vector<double> m_colors; /* one a point, or none */
    double m_longest = 0.0;
    bool m_isBuilt = false;
};

} // namespace vantrix::view
