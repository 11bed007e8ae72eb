#include "view/DashedLines.h"

#include "view/LinePattern.h"
#include "view/layers/FieldLayer.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkFloatArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace vantrix::view {
namespace {

constexpr double mostDashes = 1e6;

using Place = std::array<double, 3>;

/* Which part of a segment lies in the picture of a flat plot, from 0 to 1 along it; all of it in space. */
struct Part
{
    double from = 0.0;
    double to = 1.0;
};

Part seenPart(const Place& from, const Place& to, const Placement& placement)
{
    Part part;
    if (!placement.isFlat()) {
        return part;
    }
    for (std::size_t axis = 0; axis < 2; ++axis) {
        const double along = to[axis] - from[axis];
        const double size = placement.size[axis];
        if (along == 0.0) {
            if (from[axis] < 0.0 || from[axis] > size) {
                return {1.0, 0.0};
            }
            continue;
        }
        const double atLow = -from[axis] / along;
        const double atHigh = (size - from[axis]) / along;
        part.from = std::max(part.from, std::min(atLow, atHigh));
        part.to = std::min(part.to, std::max(atLow, atHigh));
    }
    return part;
}

class Dasher
{
public:
    Dasher(vtkPolyData& lines, LinePattern_e pattern, double length, const Placement& placement)
        : m_lines(lines)
        , m_placement(placement)
        , m_length(length)
        , m_pointValues(lines.GetPointData()->GetScalars())
        , m_cellValues(lines.GetCellData()->GetScalars())
    {
        for (const double part : dashParts(pattern)) {
            m_ends.push_back((m_ends.empty() ? 0.0 : m_ends.back()) + part * length);
        }
        m_points->SetDataType(lines.GetPoints()->GetDataType());
    }

    bool add(const LineChain& chain)
    {
        double passed = 0.0;
        for (std::size_t i = 0; i + 1 < chain.points.size(); ++i) {
            passed = std::fmod(addSegment(chain.points[i], chain.points[i + 1], chain.cells[i], passed), m_length);
            if (double(m_dashes->GetNumberOfCells()) > mostDashes) {
                return false;
            }
        }
        return true;
    }

    vtkSmartPointer<vtkPolyData> result() const
    {
        auto dashes = vtkSmartPointer<vtkPolyData>::New();
        dashes->SetPoints(m_points);
        dashes->SetLines(m_dashes);
        if (m_pointValues) {
            dashes->GetPointData()->SetScalars(m_newPointValues);
        }
        if (m_cellValues) {
            dashes->GetCellData()->SetScalars(m_newCellValues);
        }
        return dashes;
    }

private:
    /* Returns how much of the chain has passed at the end of the segment. */
    double addSegment(vtkIdType from, vtkIdType to, vtkIdType cell, double passed)
    {
        Place begin{};
        Place end{};
        m_lines.GetPoint(from, begin.data());
        m_lines.GetPoint(to, end.data());
        const Place worldBegin = m_placement.place(begin);
        const Place worldEnd = m_placement.place(end);
        const double length = std::sqrt((worldEnd[0] - worldBegin[0]) * (worldEnd[0] - worldBegin[0]) +
                                        (worldEnd[1] - worldBegin[1]) * (worldEnd[1] - worldBegin[1]) +
                                        (worldEnd[2] - worldBegin[2]) * (worldEnd[2] - worldBegin[2]));
        const Part seen = seenPart(worldBegin, worldEnd, m_placement);
        const double last = passed + seen.to * length;
        double at = passed + seen.from * length;
        double repetition = std::floor(at / m_length) * m_length;
        while (length > 0.0 && at < last && double(m_dashes->GetNumberOfCells()) <= mostDashes) {
            for (std::size_t part = 0; part < m_ends.size(); ++part) {
                const double partEnd = std::min(last, repetition + m_ends[part]);
                if (partEnd <= at) {
                    continue;
                }
                if (part % 2 == 0) {
                    addDash({begin, end}, {from, to}, {(at - passed) / length, (partEnd - passed) / length}, cell);
                }
                at = partEnd;
            }
            repetition += m_length;
        }
        return passed + length;
    }

    void addDash(const std::array<Place, 2>& ends, const std::array<vtkIdType, 2>& numbers, const Part& part,
                 vtkIdType cell)
    {
        std::array<vtkIdType, 2> dash{};
        for (std::size_t i = 0; i < 2; ++i) {
            const double at = i == 0 ? part.from : part.to;
            Place place{};
            for (std::size_t axis = 0; axis < 3; ++axis) {
                place[axis] = std::lerp(ends[0][axis], ends[1][axis], at);
            }
            dash[i] = m_points->InsertNextPoint(place.data());
            if (m_pointValues) {
                m_newPointValues->InsertNextValue(static_cast<float>(std::lerp(
                    m_pointValues->GetComponent(numbers[0], 0), m_pointValues->GetComponent(numbers[1], 0), at)));
            }
        }
        m_dashes->InsertNextCell(2, dash.data());
        if (m_cellValues) {
            m_newCellValues->InsertNextValue(static_cast<float>(m_cellValues->GetComponent(cell, 0)));
        }
    }

    vtkPolyData& m_lines;
    const Placement& m_placement;
    double m_length;
    std::vector<double> m_ends; /* of dashes and gaps in turn, from the beginning of a repetition */
    vtkDataArray* m_pointValues;
    vtkDataArray* m_cellValues;
    vtkSmartPointer<vtkPoints> m_points = vtkSmartPointer<vtkPoints>::New();
    vtkSmartPointer<vtkCellArray> m_dashes = vtkSmartPointer<vtkCellArray>::New();
    vtkSmartPointer<vtkFloatArray> m_newPointValues = vtkSmartPointer<vtkFloatArray>::New();
    vtkSmartPointer<vtkFloatArray> m_newCellValues = vtkSmartPointer<vtkFloatArray>::New();
};

} // namespace

vtkSmartPointer<vtkPolyData> dashedLines(vtkPolyData& lines, const std::vector<LineChain>& chains,
                                         LinePattern_e pattern, double length, const Placement& placement)
{
    if (lines.GetNumberOfPoints() == 0 || dashParts(pattern).isEmpty() || !(length > 0.0)) {
        return &lines;
    }
    Dasher dasher(lines, pattern, length, placement);
    const bool isDone = std::ranges::all_of(chains, [&](const LineChain& chain) { return dasher.add(chain); });
    return isDone ? dasher.result() : vtkSmartPointer<vtkPolyData>(&lines);
}

} // namespace vantrix::view
