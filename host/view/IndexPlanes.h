#pragma once

#include "view/ZoneStyle.h"

#include <vtkSmartPointer.h>

class vtkPolyData;
class vtkStructuredGrid;

namespace vantrix::kernel {
struct BlankedZone;
}

namespace vantrix::view {

/*
 * Planes of constant I, J or K of an ordered volume as quadrilaterals, each plane with points of its own. The arrays
 * `pointNumbers` and `cellNumbers` of its points and cells hold the numbers (from 0) in the grid; of a plane between
 * two layers of cells those of the layer behind it, of the last plane those before it. Where that cell is
 * blanked and the one on the other side is not, it is the number of the other.
 */
vtkSmartPointer<vtkPolyData> indexPlanes(vtkStructuredGrid& grid, const SurfaceSelection& selection,
                                         const char* pointNumbers, const char* cellNumbers,
                                         const kernel::BlankedZone* blanked = nullptr);

} // namespace vantrix::view
