#include "view/StreamPaths.h"

#include "kernel/streamtrace/PathValues.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {

void StreamPaths::set(std::shared_ptr<const kernel::TracedStreamtraces> traced,
                      const std::array<bool, 3>& isLogarithmic)
{
    if (traced == m_traced && isLogarithmic == m_isLogarithmic) {
        return;
    }
    m_traced = std::move(traced);
    m_isLogarithmic = isLogarithmic;
    ++m_revision;
    m_points.clear();
    m_values.clear();
    if (!m_traced) {
        return;
    }
    for (const kernel::TracedStreamtrace& each : *m_traced) {
        m_points.push_back(each.path->points);
        for (std::size_t axis = 0; axis < isLogarithmic.size(); ++axis) {
            for (Point3& point : m_points.back()) {
                point[axis] = isLogarithmic[axis] ? std::log10(std::max(point[axis], 1e-300)) : point[axis];
            }
        }
    }
}

bool StreamPaths::isLine(std::size_t index) const
{
    const Streamtrace_e type = streamtrace(index).type;
    return type != Streamtrace_VolumeRibbon && type != Streamtrace_VolumeRod;
}

const PathNumbers& StreamPaths::values(const kernel::DataSet& dataSet, long variable)
{
    const auto known = m_values.find(variable);
    if (known != m_values.end()) {
        return known->second;
    }
    kernel::PathValues values(dataSet, variable);
    PathNumbers result;
    for (std::size_t i = 0; i < count(); ++i) {
        const kernel::TracedStreamtrace& traced = (*m_traced)[i];
        result.push_back(values.along(*traced.path, *traced.field));
    }
    return m_values[variable] = std::move(result);
}

} // namespace vantrix::view
