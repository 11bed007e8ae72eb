#pragma once

#include "view/ZoneStyle.h"

#include <vtkSmartPointer.h>

class vtkPolyData;
class vtkStructuredGrid;

namespace vantrix::view {

/*
 * Planes of constant I, J or K of an ordered volume as quadrilaterals, each plane with points of its own. The arrays
 * `pointNumbers` and `cellNumbers` of its points and cells hold the numbers (from 0) in the grid; of a plane between
 * two layers of cells those of the layer behind it, of the last plane those before it.
 */
vtkSmartPointer<vtkPolyData> indexPlanes(vtkStructuredGrid& grid, const SurfaceSelection& selection,
                                         const char* pointNumbers, const char* cellNumbers);

} // namespace vantrix::view
