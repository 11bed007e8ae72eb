#pragma once

#include "view/StreamPaths.h"
#include "view/StreamtraceStyle.h"
#include "view/layers/PolyDataLayer.h"

namespace vantrix::view {

/* The ways of streamtraces as lines, whole or dashed by time. */
class StreamlineLayer : public PolyDataLayer
{
public:
    explicit StreamlineLayer(vtkRenderer* renderer);

    /* `colors` is null for the colour of the style. */
    void update(const StreamPaths& paths, const StreamtraceStyle& style, const PathColors* colors,
                const LayerContext& context);

private:
    struct Source
    {
        unsigned long paths = 0;
        const PathNumbers* values = nullptr;
        StreamTimes times;
        long dashSkip = 0;
        bool operator==(const Source&) const = default;
    };

    Source m_source;
};

} // namespace vantrix::view
