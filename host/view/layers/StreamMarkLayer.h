#pragma once

#include "view/StreamPaths.h"
#include "view/StreamtraceStyle.h"
#include "view/layers/SymbolLayer.h"

namespace vantrix::view {

/* Symbols on streamtraces at regular times. */
class StreamMarkLayer : public SymbolLayer
{
public:
    explicit StreamMarkLayer(vtkRenderer* renderer)
        : SymbolLayer(renderer, 10.0)
    {
        setPickable(false);
    }

    /* `colors` is null for the colour of the style. */
    void update(const StreamPaths& paths, const StreamtraceStyle& style, const PathColors* colors,
                const LayerContext& context);

private:
    struct Source
    {
        unsigned long paths = 0;
        const PathNumbers* values = nullptr;
        StreamTimes times;
        bool operator==(const Source&) const = default;
    };

    Source m_source;
};

} // namespace vantrix::view
