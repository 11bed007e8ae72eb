#pragma once

#include "view/StreamPaths.h"
#include "view/StreamtraceStyle.h"
#include "view/layers/PolyDataLayer.h"

namespace vantrix::view {

/* Arrowheads along the lines of streamtraces, on the points of their ways. They keep size and distance in the picture:
 * a change of the view makes them again. */
class ArrowheadLayer : public PolyDataLayer
{
public:
    explicit ArrowheadLayer(vtkRenderer* renderer);

    /* `paths` has to outlive the layer. `colors` is null for the colour of the style. */
    void update(const StreamPaths& paths, const StreamtraceStyle& style, const PathColors* colors,
                const LayerContext& context);

    void place(const Placement& placement) override;

private:
    struct Source
    {
        unsigned long paths = 0;
        const PathNumbers* values = nullptr;
        double size = 0.0; /* pixels */
        double spacing = 0.0;
        bool operator==(const Source&) const = default;
    };

    void build(const Placement& placement);

    const StreamPaths* m_paths = nullptr;
    Source m_source;
    Placement m_placement;
    bool m_isBuilt = false;
};

} // namespace vantrix::view
