#pragma once

#include <vtkSmartPointer.h>

#include <vector>

class vtkPolyData;

namespace vantrix::view {

/* The lines on a surface where its scalars, of points or cells, have one of the values; the values are their scalars.
 * Cell values count with their means at the points. */
vtkSmartPointer<vtkPolyData> isoLines(vtkPolyData* surface, bool byCell, const std::vector<double>& values);

} // namespace vantrix::view
