#include "kernel/probe/ShownPlanes.h"

#include "kernel/StyleStore.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace vantrix::kernel {

namespace {

/* How far from a plane, in steps of its index, a place is still on it. */
constexpr double planeTolerance = 0.05;

} // namespace

bool hasPlanes(SurfacesToPlot_e surfaces, std::size_t axis)
{
    switch (surfaces) {
    case SurfacesToPlot_IPlanes:
        return axis == 0;
    case SurfacesToPlot_JPlanes:
        return axis == 1;
    case SurfacesToPlot_KPlanes:
        return axis == 2;
    case SurfacesToPlot_IJPlanes:
        return axis != 2;
    case SurfacesToPlot_JKPlanes:
        return axis != 0;
    case SurfacesToPlot_IKPlanes:
        return axis != 1;
    case SurfacesToPlot_IJKPlanes:
    case SurfacesToPlot_EveryFace:
        return true;
    case SurfacesToPlot_None:
    case SurfacesToPlot_BoundaryFaces:
    case SurfacesToPlot_ExposedFaces:
        break;
    }
    return false;
}

ShownPlanes::ShownPlanes(const StyleStore& style, long frame, long zone, const std::array<long, 3>& dimensions)
{
    const auto read = [&](const std::string& key) {
        return style.integer(frame, style.entry(("FieldMap/Surfaces/" + key).c_str()), zone);
    };
    const auto surfaces = static_cast<SurfacesToPlot_e>(read("SurfacesToPlot"));
    for (std::size_t axis = 0; axis < m_ranges.size(); ++axis) {
        if (!hasPlanes(surfaces, axis)) {
            continue;
        }
        m_ranges[axis] = {0, dimensions[axis] - 1, 1};
        if (surfaces != SurfacesToPlot_EveryFace) {
            const std::string range = std::string(1, "IJK"[axis]) + "Range/";
            const long last = read(range + "Max"); /* 0 stands for the last of the zone */
            m_ranges[axis].first = std::max(1L, read(range + "Min")) - 1;
            m_ranges[axis].last = (last > 0 ? std::min(last, dimensions[axis]) : dimensions[axis]) - 1;
            m_ranges[axis].skip = std::max(1L, read(range + "Skip"));
        }
    }
}

std::optional<ShownPlanes::Plane> ShownPlanes::at(const std::array<double, 3>& place) const
{
    std::optional<Plane> nearest;
    double smallest = planeTolerance;
    for (std::size_t axis = 0; axis < m_ranges.size(); ++axis) {
        const Range& range = m_ranges[axis];
        if (range.last < range.first) {
            continue;
        }
        const double steps =
            std::round((place[axis] - static_cast<double>(range.first)) / static_cast<double>(range.skip));
        const long index = range.first + std::lround(std::max(0.0, steps)) * range.skip;
        const double distance = std::abs(place[axis] - static_cast<double>(index));
        if (index <= range.last && distance <= smallest) {
            smallest = distance;
            nearest = Plane{static_cast<IJKPlanes_e>(axis), index};
        }
    }
    return nearest;
}

std::vector<ShownPlanes::Plane> ShownPlanes::all() const
{
    std::vector<Plane> planes;
    for (std::size_t axis = 0; axis < m_ranges.size(); ++axis) {
        for (long index = m_ranges[axis].first; index <= m_ranges[axis].last; index += m_ranges[axis].skip) {
            planes.push_back({static_cast<IJKPlanes_e>(axis), index});
        }
    }
    return planes;
}

} // namespace vantrix::kernel
