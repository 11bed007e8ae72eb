#pragma once

#include "kernel/Zone.h"

#include <vtkDataSet.h>
#include <vtkIdList.h>

#include <vector>

namespace vantrix::kernel::readers {

/* The cells of one kind that a block of a file has. */
struct CellsOfKind
{
    ZoneType_e type = ZoneType_Ordered; /* `Ordered` for single points, which have no cells of their own */
    const char* plural = "";
    vtkSmartPointer<vtkCellArray> cells;
    vtkSmartPointer<vtkIdTypeArray> faces;
    vtkSmartPointer<vtkIdTypeArray> faceLocations;

    /* Where the values of the cells (of the points, for single points) are in the block; null when that is all of them
     * in their order. */
    vtkSmartPointer<vtkIdList> origin;
};

/* Sorts the cells of a vtkPolyData or vtkUnstructuredGrid; shares its connectivity where all cells are of one kind.
 * Throws DataError for a cell that no zone type can hold. */
std::vector<CellsOfKind> sortCells(vtkDataSet& block);

} // namespace vantrix::kernel::readers
