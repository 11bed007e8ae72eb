#include "view/layers/StreamMarkLayer.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr double mostMarks = 10'000.0; /* of one streamtrace; more would only hide it */

} // namespace

void StreamMarkLayer::update(const StreamPaths& paths, const StreamtraceStyle& style, const PathColors* colors,
                             const LayerContext& context)
{
    const bool isShown = style.isShown && style.hasMarks && paths.count() > 0;
    const ContourColors* byValue = colors ? colors->colors : nullptr;
    if (!setLooks(style.mark, isShown, byValue, byValue, context.pixels(style.mark.size), context)) {
        return;
    }
    const Source source{paths.revision(), colors ? colors->values : nullptr, style.times};
    if (source == m_source) {
        return;
    }
    m_source = source;
    std::vector<Point3> places;
    std::vector<double> values;
    for (std::size_t path = 0; path < paths.count(); ++path) {
        const std::vector<double>& times = paths.times(path);
        if (times.size() < 2) {
            continue;
        }
        const StreamTimes& marked = style.times;
        const double from = std::max(marked.start, times.front());
        const double to = std::min(marked.end, times.back());
        if ((to - from) / marked.delta > mostMarks) {
            continue;
        }
        for (double number = std::ceil((from - marked.anchor) / marked.delta);; ++number) {
            const double time = marked.anchor + number * marked.delta;
            if (!(time <= to)) {
                break;
            }
            const auto after = std::clamp(std::ranges::upper_bound(times, time), times.begin() + 1, times.end() - 1);
            const auto i = static_cast<std::size_t>(after - times.begin());
            const double part = times[i] > times[i - 1] ? (time - times[i - 1]) / (times[i] - times[i - 1]) : 0.0;
            Point3 place{};
            for (std::size_t axis = 0; axis < place.size(); ++axis) {
                place[axis] = std::lerp(paths.points(path)[i - 1][axis], paths.points(path)[i][axis], part);
            }
            places.push_back(place);
            if (colors) {
                values.push_back(std::lerp((*colors->values)[path][i - 1], (*colors->values)[path][i], part));
            }
        }
    }
    setPoints(places, values, values, {});
}

} // namespace vantrix::view
