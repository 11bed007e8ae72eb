#include "view/StreamtraceLayers.h"

namespace vantrix::view {

StreamtraceLayers::StreamtraceLayers(vtkRenderer* renderer)
    : m_lines(renderer)
    , m_arrowheads(renderer)
    , m_rodRibbons(renderer)
    , m_marks(renderer)
{}

void StreamtraceLayers::update(const kernel::DataSet& dataSet, std::shared_ptr<const kernel::TracedStreamtraces> traced,
                               const std::array<bool, 3>& isLogarithmic, const StreamtraceStyle& style,
                               const GroupOf& groupOf, const LayerContext& context)
{
    m_paths.set(std::move(traced), isLogarithmic);
    const auto colors = [&](long number) -> std::optional<PathColors> {
        const std::optional<Group> group = m_paths.count() > 0 && number > 0 ? groupOf(number) : std::nullopt;
        return group ? std::optional(PathColors{&m_paths.values(dataSet, group->variable), &group->colors})
                     : std::nullopt;
    };
    const std::optional<PathColors> lineColors = colors(style.line.color.contourGroup);
    m_lines.update(m_paths, style, lineColors ? &*lineColors : nullptr, context);
    m_arrowheads.update(m_paths, style, lineColors ? &*lineColors : nullptr, context);
    const std::optional<PathColors> markColors = colors(style.hasMarks ? style.mark.color.contourGroup : 0);
    m_marks.update(m_paths, style, markColors ? &*markColors : nullptr, context);
    const ContourStyle& contour = style.rodRibbon.contour;
    const std::optional<PathColors> flood = colors(contour.hasFlood() ? contour.floodGroup : 0);
    const std::optional<PathColors> lines = colors(contour.hasLines() ? contour.lineGroup : 0);
    m_rodRibbons.update(m_paths, style, flood ? &*flood : nullptr, lines ? &*lines : nullptr, context);
}

void StreamtraceLayers::place(const Placement& placement)
{
    m_lines.place(placement);
    m_arrowheads.place(placement);
    m_rodRibbons.place(placement);
    m_marks.place(placement);
}

long StreamtraceLayers::geometryCount() const
{
    return m_lines.geometryCount() + m_arrowheads.geometryCount() + m_rodRibbons.geometryCount();
}

} // namespace vantrix::view
