#pragma once

#include "view/StreamPaths.h"
#include "view/layers/ArrowheadLayer.h"
#include "view/layers/RodRibbonLayer.h"
#include "view/layers/StreamMarkLayer.h"
#include "view/layers/StreamlineLayer.h"

#include <array>
#include <functional>
#include <memory>

namespace vantrix::view {

/*
 * The streamtraces of a field plot. What is drawn is made again only when the ways, or what the layer says it is made
 * from, changed; a colour or a thickness makes nothing again.
 */
class StreamtraceLayers
{
public:
    explicit StreamtraceLayers(vtkRenderer* renderer);

    /* A contour group (from 1) in use: its variable and its colours; null for one that has none. */
    struct Group
    {
        long variable;
        const ContourColors& colors;
    };
    using GroupOf = std::function<std::optional<Group>(long number)>;

    void update(const kernel::DataSet& dataSet, std::shared_ptr<const kernel::TracedStreamtraces> traced,
                const std::array<bool, 3>& isLogarithmic, const StreamtraceStyle& style, const GroupOf& groupOf,
                const LayerContext& context);

    void place(const Placement& placement);

    const StreamPaths& paths() const { return m_paths; }

    /* How often a layer was made anew, counted over all. */
    long geometryCount() const;

private:
    StreamPaths m_paths;
    StreamlineLayer m_lines;
    ArrowheadLayer m_arrowheads;
    RodRibbonLayer m_rodRibbons;
    StreamMarkLayer m_marks;
};

} // namespace vantrix::view
