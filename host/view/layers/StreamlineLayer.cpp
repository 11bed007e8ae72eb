#include "view/layers/StreamlineLayer.h"

#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

/* Collects lines of points with, or without, a value each. */
class LineBuilder
{
public:
    LineBuilder() { m_points->SetDataTypeToDouble(); }

    void begin() { m_line.clear(); }
    void add(const Point3& place, double value)
    {
        m_line.push_back(m_points->InsertNextPoint(place.data()));
        m_values->InsertNextValue(static_cast<float>(value));
    }
    void end()
    {
        if (m_line.size() > 1) {
            m_lines->InsertNextCell(static_cast<vtkIdType>(m_line.size()), m_line.data());
        }
    }

    vtkSmartPointer<vtkPolyData> result(bool hasValues) const
    {
        auto lines = vtkSmartPointer<vtkPolyData>::New();
        lines->SetPoints(m_points);
        lines->SetLines(m_lines);
        if (hasValues) {
            lines->GetPointData()->SetScalars(m_values);
        }
        return lines;
    }

private:
    vtkSmartPointer<vtkPoints> m_points = vtkSmartPointer<vtkPoints>::New();
    vtkSmartPointer<vtkCellArray> m_lines = vtkSmartPointer<vtkCellArray>::New();
    vtkSmartPointer<vtkFloatArray> m_values = vtkSmartPointer<vtkFloatArray>::New();
    std::vector<vtkIdType> m_line;
};

/* One path: points, times, and values or none. */
struct Way
{
    const std::vector<Point3>& points;
    const std::vector<double>& times;
    const std::vector<double>* values;

    double value(std::size_t i) const { return values ? (*values)[i] : 0.0; }
};

/* The part of a way between two times. */
void addPart(LineBuilder& lines, const Way& way, double from, double to)
{
    const auto at = [&](double time, std::size_t after) {
        const double part = (time - way.times[after - 1]) / (way.times[after] - way.times[after - 1]);
        Point3 place{};
        for (std::size_t axis = 0; axis < place.size(); ++axis) {
            place[axis] = std::lerp(way.points[after - 1][axis], way.points[after][axis], part);
        }
        lines.add(place, std::lerp(way.value(after - 1), way.value(after), part));
    };
    const auto index = [&](auto found) { return static_cast<std::size_t>(found - way.times.begin()); };
    const std::size_t first = index(std::ranges::upper_bound(way.times, from));
    const std::size_t last = index(std::ranges::lower_bound(way.times, to));
    lines.begin();
    if (first > 0 && first < way.times.size()) {
        at(from, first);
    }
    for (std::size_t i = first; i < last; ++i) {
        lines.add(way.points[i], way.value(i));
    }
    if (last > 0 && last < way.times.size()) {
        at(to, last);
    }
    lines.end();
}

void addDashes(LineBuilder& lines, const Way& way, const StreamTimes& times, long skip)
{
    constexpr double mostDashes = 100'000.0; /* of one way; more run together */
    const double from = std::max(times.start, way.times.front());
    const double to = std::min(times.end, way.times.back());
    const double period = 2.0 * double(skip) * times.delta;
    if (from < to && (to - from) / period > mostDashes) {
        addPart(lines, way, from, to);
        return;
    }
    for (double number = std::floor((from - times.anchor) / period); from < to; ++number) {
        const double begin = times.anchor + number * period;
        if (begin >= to) {
            break;
        }
        const double end = std::min(begin + 0.5 * period, to);
        if (end > from) {
            addPart(lines, way, std::max(begin, from), end);
        }
    }
}

} // namespace

StreamlineLayer::StreamlineLayer(vtkRenderer* renderer)
    : PolyDataLayer(renderer, 8.0)
{
    setPickable(false); // what is probed or placed with the mouse lies on what is behind it
}

void StreamlineLayer::update(const StreamPaths& paths, const StreamtraceStyle& style, const PathColors* colors,
                             const LayerContext& context)
{
    setShown(style.isShown && style.hasPaths && paths.count() > 0);
    if (!isShown()) {
        return;
    }
    const Source source{paths.revision(), colors ? colors->values : nullptr,
                        style.dashSkip > 0 ? style.times : StreamTimes(), style.dashSkip};
    if (source != m_source) {
        m_source = source;
        LineBuilder lines;
        for (std::size_t i = 0; i < paths.count(); ++i) {
            if (!paths.isLine(i) || paths.points(i).size() < 2) {
                continue;
            }
            const Way way{paths.points(i), paths.times(i), colors ? &(*colors->values)[i] : nullptr};
            if (style.dashSkip > 0) {
                addDashes(lines, way, style.times, style.dashSkip);
                continue;
            }
            lines.begin();
            for (std::size_t point = 0; point < way.points.size(); ++point) {
                lines.add(way.points[point], way.value(point));
            }
            lines.end();
        }
        setGeometry(lines.result(colors));
    }
    setColor(style.line.color.color);
    if (colors) {
        setColors(*colors->colors, false);
    }
    setLines(context.lineWidth(style.line.thickness));
}

} // namespace vantrix::view
