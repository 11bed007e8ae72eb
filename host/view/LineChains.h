#pragma once

#include <vtkType.h>

#include <vector>

class vtkPolyData;

namespace vantrix::view {

/* Points of a line one after the other, and the cell that each of its segments came from. */
struct LineChain
{
    std::vector<vtkIdType> points;
    std::vector<vtkIdType> cells; /* one less than points */
};

/*
 * The segments of the lines of `lines`, joined to chains as long as possible. Where more than two meet in a point, the
 * two that run on straightest are joined; the lines of a grid come out whole. A closed line ends with the point that it
 * begins with.
 */
std::vector<LineChain> lineChains(vtkPolyData& lines);

} // namespace vantrix::view
