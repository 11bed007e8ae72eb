#pragma once

#include <vtkDataSet.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkPolyData.h>
#include <vtkSmartPointer.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

#include <string>
#include <vector>

/*
 * Data and files that the tests of reading make for themselves. Every data set has at its points "Pressure" =
 * 1 + 2x + 3y + 4z and the vector "Velocity" = (x, 2y, 3z) in single precision, and "Part" = the number of the cell.
 */
namespace samplefiles {

vtkSmartPointer<vtkStructuredGrid> structured();
vtkSmartPointer<vtkDataSet> rectilinear();
vtkSmartPointer<vtkDataSet> image();
vtkSmartPointer<vtkUnstructuredGrid> bricks();
vtkSmartPointer<vtkUnstructuredGrid> mixedVolume(); /* a brick, a wedge on it, a pyramid and a tetrahedron */
vtkSmartPointer<vtkPolyData> surface();
vtkSmartPointer<vtkMultiBlockDataSet> blocks(); /* "Inlet", bricks, and "Wall", a surface */

struct Format
{
    std::string suffix;
    void (*write)(const std::string& file);
    long points;
    long cells;
    bool hasValues; /* whether the format keeps values beside the points */
};

/* One file of each format that VTK writes; of a format with variants one each. */
const std::vector<Format>& formats();

/* A case file, its geometry of two triangles and "Temperature" = 10, 20, 30, 40 at the four points; the paths. */
std::vector<std::string> writeEnSight(const std::string& folder);

/* A PLOT3D grid and solution of one block, binary, single precision, without byte counts. */
void writePlot3d(const std::string& grid, const std::string& solution);

} // namespace samplefiles
