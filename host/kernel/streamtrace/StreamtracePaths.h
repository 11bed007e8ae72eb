#pragma once

#include "kernel/Frame.h"
#include "kernel/Progress.h"
#include "kernel/streamtrace/StreamTracing.h"

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace vantrix::kernel {

class Document;
class StyleStore;

/* A streamtrace of a frame, and the way that was traced for it. */
struct TracedStreamtrace
{
    std::shared_ptr<const Streamtrace> streamtrace;
    std::shared_ptr<const StreamtracePath> path;
    std::shared_ptr<const VelocityField> field; /* that it was traced in */

    bool operator==(const TracedStreamtrace&) const = default;
};

using TracedStreamtraces = std::vector<TracedStreamtrace>;

/*
 * The ways of the streamtraces of all frames. Each is traced once, when it is asked for first, and kept until the data,
 * the zones that take part, the vectors or the way of tracing is another one; colours and other looks do not count.
 */
class StreamtracePaths
{
public:
    StreamtracePaths(const Document& document, const StyleStore& style);
    ~StreamtracePaths();

    /*
     * Those that the frame's plot draws, in order; the very same object until one of them changes. Empty while the plot
     * shows no streamtraces. Throws DataError when vectors cannot be loaded, ActionCancelled when it was stopped: what
     * was traced till then is kept.
     */
    std::shared_ptr<const TracedStreamtraces> of(const Frame& frame, const ReportProgress& progress = {});

    /* How many streamtraces were traced since the start. */
    long tracedCount() const { return m_tracedCount; }

private:
    /* What one kind of streamtraces of a frame was traced in. */
    struct Field
    {
        VelocitySource source;
        TracingSettings settings;
        std::shared_ptr<const VelocityField> field; /* made when something is to be traced */
        std::optional<StreamTracing> tracing;
        std::map<std::shared_ptr<const Streamtrace>, std::shared_ptr<const StreamtracePath>> paths;
    };
    struct Entry
    {
        unsigned long style = 0; /* stamp */
        std::shared_ptr<const DataSet> dataSet;
        ObjectList<Streamtrace> streamtraces;
        std::array<Field, 3> fields; /* by TracedPart */
        std::shared_ptr<const TracedStreamtraces> traced;
    };

    void trace(const Frame& frame, Entry& entry, const ObjectList<Streamtrace>& shown, const ReportProgress& progress);
    void dropDeletedFrames();

    const Document& m_document;
    const StyleStore& m_style;
    std::map<long, Entry> m_entries; /* by frame */
    long m_tracedCount = 0;
};

} // namespace vantrix::kernel
