#pragma once

#include "view/ZonePoints.h"
#include "view/ZoneSurface.h"
#include "view/layers/BlankingBoundaryLayer.h"
#include "view/layers/ContourLineLayer.h"
#include "view/layers/EdgeLayer.h"
#include "view/layers/FloodLayer.h"
#include "view/layers/MeshLayer.h"
#include "view/layers/ScatterLayer.h"
#include "view/layers/ShadeLayer.h"
#include "view/layers/VectorLayer.h"

#include <array>
#include <functional>
#include <memory>
#include <vector>

namespace vantrix::view {

/* What the layers of a zone show besides its shape. */
struct ZoneValues
{
    /* The values of a contour group (from 1) in the zone, or null. Asked only for what a shown layer needs. */
    std::function<const ContourValues*(long group)> contour;
    RgbValues rgb; /* where the zone is flooded by them */
    std::array<kernel::FieldArray, 3> vectors;
    kernel::FieldArray sizes; /* of symbols */

    /* A constraint whose boundary is drawn, with the fields that it compares. */
    struct Boundary
    {
        const BlankingBoundaryStyle& style;
        kernel::FieldArray field;
        kernel::FieldArray other;
    };
    std::vector<Boundary> boundaries;
};

/*
 * The layers of one zone in a field plot. Each step of the pipeline is kept and made again only when what it is made
 * from changed: the surface with the zone's geometry, its colours with the contour variable, lines with the levels. A
 * colour or a thickness makes nothing again.
 */
class ZoneLayers
{
public:
    explicit ZoneLayers(vtkRenderer* renderer);

    /* `geometry` holds the zone's points and cells as they are to be drawn; what is blanked (null for nothing) is left
     * out. */
    void update(vtkDataSet* geometry, const std::shared_ptr<const kernel::BlankedZone>& blanked, const ZoneStyle& style,
                const ZoneValues& values, const LayerContext& context);

    void place(const Placement& placement);

    /* Whether something that a picker found belongs to the zone. */
    bool hasProp(const vtkProp* prop) const;

    /* The box around what is drawn of the zone, in the renderer's world; false when nothing is. */
    bool worldBounds(std::array<double, 6>& bounds) const;

    /* The contour lines; they have none while they are not shown. */
    ContourLineLayer& contourLines() { return m_lines; }

    /* The number of polygons and lines of the surface, and of its points. */
    long surfaceCellCount();
    long surfacePointCount();

    /* How often a layer was made anew, counted over all. */
    long geometryCount() const;

private:
    /* Those that the mouse finds. */
    std::array<const FieldLayer*, 8> layers() const
    {
        return {&m_shade, &m_flood, &m_mesh, &m_lines, &m_edges, &m_vectors, &m_scatter.fill(), &m_scatter.outline()};
    }

    vtkRenderer* m_renderer;
    ZoneSurface m_surface;
    ZonePoints m_points;
    ShadeLayer m_shade;
    FloodLayer m_flood;
    MeshLayer m_mesh;
    ContourLineLayer m_lines;
    EdgeLayer m_edges;
    VectorLayer m_vectors;
    ScatterLayer m_scatter;
    std::vector<std::unique_ptr<BlankingBoundaryLayer>> m_boundaries;
};

} // namespace vantrix::view
