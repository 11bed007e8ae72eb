#pragma once

#include "view/StreamPaths.h"
#include "view/StreamtraceStyle.h"
#include "view/layers/PolyDataLayer.h"

#include <array>

namespace vantrix::view {

/*
 * Rods and ribbons along the ways of streamtraces: their surface in one colour or flooded by a contour group, contour
 * lines on it, and its mesh. They are made in the world of the renderer, so that rods are round whatever the scales of
 * the axes are; turning a plot makes nothing again.
 */
class RodRibbonLayer
{
public:
    explicit RodRibbonLayer(vtkRenderer* renderer);

    /* `paths` has to outlive the layer. Null colours are not drawn. */
    void update(const StreamPaths& paths, const StreamtraceStyle& style, const PathColors* flood,
                const PathColors* lines, const LayerContext& context);

    void place(const Placement& placement);

    long geometryCount() const;

private:
    /* A layer whose geometry is in the world already. */
    class Part : public PolyDataLayer
    {
    public:
        Part(vtkRenderer* renderer, double order);
        void place(const Placement& placement) override;
        void setMesh();

        using FieldLayer::contrasted;
        using FieldLayer::isShown;
        using FieldLayer::setColor;
        using FieldLayer::setColors;
        using FieldLayer::setLighting;
        using FieldLayer::setLines;
        using FieldLayer::setShown;
        using FieldLayer::stepBack;
        using PolyDataLayer::setGeometry;
    };

    struct Source
    {
        unsigned long paths = 0;
        const PathNumbers* flood = nullptr;
        const PathNumbers* lines = nullptr;
        std::vector<double> levels; /* of the lines */
        double width = 0.0;
        long corners = 0;
        bool operator==(const Source&) const = default;
    };

    void build(const Placement& placement);
    vtkSmartPointer<vtkPolyData> surface(const Placement& placement, const PathNumbers* values) const;
    std::array<const Part*, 3> parts() const { return {&m_surface, &m_mesh, &m_lines}; }

    Part m_surface;
    Part m_mesh;
    Part m_lines;
    const StreamPaths* m_paths = nullptr;
    Source m_source;
    Placement m_placement;
    bool m_isBuilt = false;
};

} // namespace vantrix::view
