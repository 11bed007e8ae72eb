#pragma once

#include <vtkSmartPointer.h>
#include <vtkType.h>

#include <vector>

class vtkPolyData;

namespace vantrix::kernel {
struct BlankedZone;
}

namespace vantrix::view {

/*
 * A new point between two others where a cell was trimmed. The others are numbers of the zone's points, from 0, or
 * -1 for the first cut, -2 for the second and so on; such cuts come earlier in the list.
 */
struct SurfaceCut
{
    vtkIdType from;
    vtkIdType to;
    double at; /* 0 at `from`, 1 at `to` */
};

/* What blanking leaves of a surface. Cuts have the same negative numbers in the array of point numbers. */
struct UnblankedSurface
{
    vtkSmartPointer<vtkPolyData> surface;
    std::vector<SurfaceCut> cuts;
};

/*
 * Leaves blanked cells out and trims the others. `surface` has points, lines and polygons, and the arrays
 * `pointNumbers` and `cellNumbers` with the zone's numbers of its points and cells; of its other arrays none is kept.
 */
UnblankedSurface withoutBlanked(vtkPolyData& surface, const kernel::BlankedZone& blanked, const char* pointNumbers,
                                const char* cellNumbers);

} // namespace vantrix::view
