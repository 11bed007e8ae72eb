#include "view/LineChains.h"

#include <vtkMath.h>
#include <vtkPolyData.h>

#include <algorithm>
#include <array>

namespace vantrix::view {
namespace {

constexpr std::size_t none = static_cast<std::size_t>(-1);
constexpr double sharpestBend = 0.5; /* cosine; a bend of 60 degrees */

struct Segment
{
    std::array<vtkIdType, 2> points;
    vtkIdType cell;
    std::array<std::size_t, 2> next{none, none}; /* the segment joined at each end */
    bool isTaken = false;
};

std::vector<Segment> segmentsOf(vtkPolyData& lines)
{
    std::vector<Segment> segments;
    vtkIdType count = 0;
    const vtkIdType* points = nullptr;
    for (vtkIdType cell = 0; cell < lines.GetNumberOfCells(); ++cell) {
        const int type = lines.GetCellType(cell);
        if (type != VTK_LINE && type != VTK_POLY_LINE) {
            continue;
        }
        lines.GetCellPoints(cell, count, points);
        for (vtkIdType i = 0; i + 1 < count; ++i) {
            if (points[i] != points[i + 1]) {
                segments.push_back({{points[i], points[i + 1]}, cell, {none, none}, false});
            }
        }
    }
    return segments;
}

/* An end of a segment: 2 * segment + which. */
using End = std::size_t;

class Joiner
{
public:
    explicit Joiner(vtkPolyData& lines)
        : m_lines(lines)
        , m_segments(segmentsOf(lines))
    {}

    std::vector<LineChain> chains()
    {
        std::vector<std::vector<End>> endsAt(std::size_t(m_lines.GetNumberOfPoints()));
        for (End end = 0; end < 2 * m_segments.size(); ++end) {
            endsAt[std::size_t(m_segments[end / 2].points[end % 2])].push_back(end);
        }
        for (const std::vector<End>& ends : endsAt) {
            join(ends);
        }
        std::vector<LineChain> result;
        for (const bool areOpen : {true, false}) {
            for (std::size_t i = 0; i < m_segments.size(); ++i) {
                const Segment& segment = m_segments[i];
                const bool isEnd = segment.next[0] == none || segment.next[1] == none;
                if (!segment.isTaken && isEnd == areOpen) {
                    result.push_back(chainFrom(i, segment.next[0] == none ? 0 : 1));
                }
            }
        }
        return result;
    }

private:
    std::array<double, 3> directionFrom(End end) const
    {
        const Segment& segment = m_segments[end / 2];
        std::array<double, 3> from{};
        std::array<double, 3> to{};
        m_lines.GetPoint(segment.points[end % 2], from.data());
        m_lines.GetPoint(segment.points[1 - end % 2], to.data());
        std::array<double, 3> direction{to[0] - from[0], to[1] - from[1], to[2] - from[2]};
        vtkMath::Normalize(direction.data());
        return direction;
    }

    void connect(End one, End other)
    {
        m_segments[one / 2].next[one % 2] = other / 2;
        m_segments[other / 2].next[other % 2] = one / 2;
    }

    void join(const std::vector<End>& ends)
    {
        if (ends.size() == 2 && ends[0] / 2 != ends[1] / 2) {
            connect(ends[0], ends[1]);
            return;
        }
        struct Pair
        {
            double bend; /* -1 runs straight on */
            End one;
            End other;
        };
        std::vector<Pair> pairs;
        for (std::size_t i = 0; i < ends.size(); ++i) {
            const auto direction = directionFrom(ends[i]);
            for (std::size_t k = i + 1; k < ends.size(); ++k) {
                const double bend = vtkMath::Dot(direction.data(), directionFrom(ends[k]).data());
                if (bend < -sharpestBend) {
                    pairs.push_back({bend, ends[i], ends[k]});
                }
            }
        }
        std::ranges::sort(pairs, {}, &Pair::bend);
        for (const Pair& pair : pairs) {
            if (m_segments[pair.one / 2].next[pair.one % 2] == none &&
                m_segments[pair.other / 2].next[pair.other % 2] == none) {
                connect(pair.one, pair.other);
            }
        }
    }

    LineChain chainFrom(std::size_t first, std::size_t startEnd)
    {
        LineChain chain;
        std::size_t at = first;
        vtkIdType point = m_segments[first].points[startEnd];
        chain.points.push_back(point);
        while (at != none && !m_segments[at].isTaken) {
            Segment& segment = m_segments[at];
            segment.isTaken = true;
            const std::size_t far = segment.points[0] == point ? 1 : 0;
            point = segment.points[far];
            chain.points.push_back(point);
            chain.cells.push_back(segment.cell);
            at = segment.next[far];
        }
        return chain;
    }

    vtkPolyData& m_lines;
    std::vector<Segment> m_segments;
};

} // namespace

std::vector<LineChain> lineChains(vtkPolyData& lines)
{
    return Joiner(lines).chains();
}

} // namespace vantrix::view
