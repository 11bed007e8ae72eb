#pragma once

#include "kernel/DataSet.h"

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <array>

namespace vantrix::kernel {

/* The numbers of the variables that serve as X, Y and Z; 0 for none. */
using CoordinateVariables = std::array<long, 3>;

/*
 * A zone as VTK's filters take it: a vtkStructuredGrid of an ordered zone (one of points or of a line included), a
 * vtkUnstructuredGrid of a finite-element one. Its points have the values of three variables as coordinates (0.0 where
 * there is no variable, or the zone does not have it at its points). Every variable of the zone that is in memory is a
 * point or cell array that has the variable's name and shares its memory; who needs one that may not be there calls
 * FieldArray::load() first.
 *
 * The grid is kept with the zone and is the same object until the zone, the coordinates, a variable's name or which of
 * them are in memory is another one. It is shared: nobody writes to it. A point array that is interleaved from three
 * variables is single precision when that holds all three exactly. Null when there is no such zone.
 */
vtkSmartPointer<vtkDataSet> zoneGrid(const DataSet& dataSet, long zone, const CoordinateVariables& coordinates);

/* Whether two grids have the very same points and cells, whatever their arrays. Null is like nothing. */
bool haveSameShape(vtkDataSet* one, vtkDataSet* other);

/* The same points and cells without arrays, a new object each time: for who keeps it and must keep no values. */
vtkSmartPointer<vtkDataSet> zoneShape(const DataSet& dataSet, long zone, const CoordinateVariables& coordinates);

} // namespace vantrix::kernel
