#include "view/ZoneLayers.h"

#include <vtkDataSet.h>
#include <vtkPolyData.h>

#include <algorithm>

namespace vantrix::view {

ZoneLayers::ZoneLayers(vtkRenderer* renderer)
    : m_renderer(renderer)
    , m_shade(renderer)
    , m_flood(renderer)
    , m_mesh(renderer)
    , m_lines(renderer)
    , m_edges(renderer)
    , m_vectors(renderer)
    , m_scatter(renderer)
{}

void ZoneLayers::update(vtkDataSet* geometry, const std::shared_ptr<const kernel::BlankedZone>& blanked,
                        const ZoneStyle& style, const ZoneValues& values, const LayerContext& context)
{
    const auto contour = [&](bool isNeeded, long group) {
        return isNeeded && group > 0 ? values.contour(group) : nullptr;
    };
    const auto colors = [&](bool isNeeded, const LayerColor& color) { return contour(isNeeded, color.contourGroup); };
    m_surface.set(geometry, style.surfaces, context.keptPoints, blanked);
    if (style.contour.isFloodedByRgb()) {
        m_flood.update(m_surface, style, values.rgb, context);
    } else {
        m_flood.update(m_surface, style, contour(style.contour.hasFlood(), style.contour.floodGroup), context);
    }
    m_shade.update(m_surface, style, m_flood.isShown(), context);
    const ContourStyle& lines = style.contour;
    m_lines.update(m_surface, lines, contour(lines.hasLines(), lines.lineGroup),
                   colors(lines.hasLines(), lines.lineColor), context);
    m_mesh.update(m_surface, style.mesh, colors(style.mesh.isShown, style.mesh.color), context);
    m_edges.update(m_surface, style.edge, m_flood.isShown(), context);

    if (style.vector.isShown || style.scatter.isShown) {
        m_points.set(m_surface, style.points);
    }
    m_vectors.update(m_surface, m_points, style.vector, values.vectors,
                     colors(style.vector.isShown, style.vector.color), context);
    const ScatterStyle& scatter = style.scatter;
    m_scatter.update(m_points, scatter, values.sizes, colors(scatter.isShown, scatter.color),
                     colors(scatter.isShown, scatter.fill), context);
    m_boundaries.resize(values.boundaries.size());
    for (std::size_t i = 0; i < m_boundaries.size(); ++i) {
        const ZoneValues::Boundary& boundary = values.boundaries[i];
        if (!m_boundaries[i]) {
            m_boundaries[i] = std::make_unique<BlankingBoundaryLayer>(m_renderer);
        }
        m_boundaries[i]->update(m_surface, boundary.style, boundary.field, boundary.other, context);
    }
}

void ZoneLayers::place(const Placement& placement)
{
    m_shade.place(placement);
    m_flood.place(placement);
    m_mesh.place(placement);
    m_lines.place(placement);
    m_edges.place(placement);
    m_vectors.place(placement);
    m_scatter.place(placement);
    for (const auto& boundary : m_boundaries) {
        boundary->place(placement);
    }
}

bool ZoneLayers::hasProp(const vtkProp* prop) const
{
    return std::ranges::any_of(layers(), [&](const FieldLayer* layer) { return layer->isProp(prop); });
}

bool ZoneLayers::worldBounds(std::array<double, 6>& bounds) const
{
    return std::ranges::any_of(layers(), [&](const FieldLayer* layer) { return layer->shownBounds(bounds); });
}

long ZoneLayers::surfaceCellCount()
{
    return static_cast<long>(m_surface.surface()->GetNumberOfCells());
}

long ZoneLayers::geometryCount() const
{
    long count = 0;
    for (const FieldLayer* layer : layers()) {
        count += layer->geometryCount();
    }
    return count;
}

long ZoneLayers::surfacePointCount()
{
    return static_cast<long>(m_surface.surface()->GetNumberOfPoints());
}

} // namespace vantrix::view
