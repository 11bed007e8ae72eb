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

/* The same two triangles as EnSight 6, with a block of 2 x 2 x 1 points behind them and "Load" = 1, 2 in the triangles.
 */
std::vector<std::string> writeEnSight6(const std::string& folder);

/* bricks() in the binary variant of EnSight Gold, "Pressure" at the points; the paths of case, geometry, variable. */
std::vector<std::string> writeBinaryEnSight(const std::string& folder);

struct Plot3dLayout
{
    bool isText = false;
    bool isMultiGrid = false; /* 4 x 3 x 2 and 2 x 2 x 2 points in place of the first alone */
    bool isTwoDimensional = false;
    bool hasByteCounts = false;
    bool isDoublePrecision = false;
    bool isBigEndian = false;
    bool hasBlanking = false; /* the first point of each block is blanked */
};

/* A PLOT3D grid with coordinates (i, j / 2, 2k) and a solution: component c of point n is 1 + c + n / 8. */
void writePlot3d(const std::string& grid, const std::string& solution, const Plot3dLayout& layout = {});

} // namespace samplefiles
