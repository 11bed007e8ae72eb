#include "kernel/streamtrace/StreamtracePaths.h"

#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/StyleStore.h"

#include <algorithm>
#include <set>

namespace vantrix::kernel {

namespace {

ObjectList<Streamtrace> shownStreamtraces(const StyleStore& style, const Frame& frame)
{
    ObjectList<Streamtrace> shown;
    const auto plotType = static_cast<PlotType_e>(style.integer(frame.id(), style.entry("PlotType")));
    if (frame.dataSet() && style.flag(frame.id(), style.entry("StreamtraceLayers/Show"))) {
        std::ranges::copy_if(frame.streamtraces(), std::back_inserter(shown),
                             [&](const auto& each) { return belongsTo(plotType, each->type); });
    }
    return shown;
}

} // namespace

StreamtracePaths::StreamtracePaths(const Document& document, const StyleStore& style)
    : m_document(document)
    , m_style(style)
{}

StreamtracePaths::~StreamtracePaths() = default;

void StreamtracePaths::dropDeletedFrames()
{
    std::erase_if(m_entries, [&](const auto& each) { return !m_document.frameById(each.first); });
}

std::shared_ptr<const TracedStreamtraces> StreamtracePaths::of(const Frame& frame, const ReportProgress& progress)
{
    const unsigned long stamp = m_style.scopeStamp(frame.id());
    Entry& entry = m_entries[frame.id()];
    if (!entry.traced || entry.style != stamp || entry.dataSet != frame.dataSet() ||
        entry.streamtraces != frame.streamtraces()) {
        dropDeletedFrames();
        if (entry.dataSet != frame.dataSet()) {
            entry.fields = {};
        }
        entry.dataSet = frame.dataSet();
        trace(frame, entry, shownStreamtraces(m_style, frame), progress);
        entry.style = stamp;
        entry.streamtraces = frame.streamtraces();
    }
    return entry.traced;
}

void StreamtracePaths::trace(const Frame& frame, Entry& entry, const ObjectList<Streamtrace>& shown,
                             const ReportProgress& progress)
{
    const TracingSettings settings = TracingSettings::read(m_style, frame.id());
    const std::set<std::shared_ptr<const Streamtrace>> present(frame.streamtraces().begin(),
                                                               frame.streamtraces().end());
    for (const TracedPart part : {TracedPart::Plane, TracedPart::Volume, TracedPart::Surface}) {
        Field& field = entry.fields[static_cast<std::size_t>(part)];
        const bool isUsed =
            std::ranges::any_of(shown, [&](const auto& each) { return tracedPart(each->type) == part; });
        VelocitySource source =
            isUsed ? VelocitySource::read(m_style, frame, part, settings.obeysBlanking) : VelocitySource();
        if (!isUsed || source != field.source || settings != field.settings) {
            field = {std::move(source), settings, nullptr, {}, {}};
        }
        std::erase_if(field.paths, [&](const auto& each) { return !present.contains(each.first); });
    }
    auto traced = std::make_shared<TracedStreamtraces>();
    for (const auto& streamtrace : shown) {
        const TracedPart part = tracedPart(streamtrace->type);
        Field& field = entry.fields[static_cast<std::size_t>(part)];
        auto& path = field.paths[streamtrace];
        if (!path) {
            if (progress && !progress(double(traced->size()) / double(shown.size()))) {
                throw ActionCancelled();
            }
            if (!field.tracing) {
                field.field = std::make_shared<const VelocityField>(*frame.dataSet(), field.source);
                field.tracing.emplace(field.field, part, settings);
            }
            path = std::make_shared<const StreamtracePath>(field.tracing->path(*streamtrace));
            ++m_tracedCount;
        }
        traced->push_back({streamtrace, path, field.field});
    }
    if (!entry.traced || *entry.traced != *traced) {
        entry.traced = std::move(traced);
    }
}

} // namespace vantrix::kernel
