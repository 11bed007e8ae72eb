#pragma once

#include "kernel/streamtrace/StreamtracePaths.h"
#include "view/Camera3D.h"
#include "view/ContourColors.h"

#include <array>
#include <map>
#include <memory>
#include <vector>

namespace vantrix::view {

/* One number at each point of each path. */
using PathNumbers = std::vector<std::vector<double>>;

/* The ways of streamtraces in the coordinates that a plot draws in: those of the data, or of logarithmic axes their
 * decimal logarithms. */
class StreamPaths
{
public:
    /* `traced` may be null. */
    void set(std::shared_ptr<const kernel::TracedStreamtraces> traced, const std::array<bool, 3>& isLogarithmic);

    /* Moves when the ways are others. */
    unsigned long revision() const { return m_revision; }

    std::size_t count() const { return m_points.size(); }
    const kernel::Streamtrace& streamtrace(std::size_t index) const { return *(*m_traced)[index].streamtrace; }
    const std::vector<Point3>& points(std::size_t index) const { return m_points[index]; }
    const std::vector<double>& times(std::size_t index) const { return (*m_traced)[index].path->times; }
    const std::vector<double>& twists(std::size_t index) const { return (*m_traced)[index].path->twists; }

    /* Whether a path is drawn as a line, not as a rod or ribbon. */
    bool isLine(std::size_t index) const;

    /* The values of a variable; the very same object until the ways are others. Throws DataError when they cannot be
     * loaded. */
    const PathNumbers& values(const kernel::DataSet& dataSet, long variable);

private:
    std::shared_ptr<const kernel::TracedStreamtraces> m_traced;
    std::array<bool, 3> m_isLogarithmic{};
    std::vector<std::vector<Point3>> m_points;
    std::map<long, PathNumbers> m_values; /* by variable */
    unsigned long m_revision = 0;
};

/* What colours streamtraces by a contour group. */
struct PathColors
{
    const PathNumbers* values;
    const ContourColors* colors;
};

} // namespace vantrix::view
