#pragma once

#include <vtkSmartPointer.h>

class vtkPolyData;

namespace vantrix::view {

/*
 * A coarser surface of about that part of the points (above 0, below 1): points that lie close together become one of
 * them. Arrays of points and cells go along. A surface without polygons is returned as it is.
 */
vtkSmartPointer<vtkPolyData> thinned(vtkPolyData* surface, double keptPoints);

} // namespace vantrix::view
