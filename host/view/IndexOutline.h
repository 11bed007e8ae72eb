#pragma once

#include <vtkSmartPointer.h>

class vtkPolyData;
class vtkStructuredGrid;

namespace vantrix::view {

/*
 * The lines along which the indices of an ordered zone end: twelve of a volume, four of a surface, one of a curve; each
 * of one segment a cell. The arrays `pointNumbers` and `cellNumbers` of points and segments hold the numbers (from 0)
 * in the grid.
 */
vtkSmartPointer<vtkPolyData> indexOutline(vtkStructuredGrid& grid, const char* pointNumbers, const char* cellNumbers);

} // namespace vantrix::view
