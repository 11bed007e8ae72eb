#pragma once

#include "kernel/DataSet.h"
#include "kernel/Progress.h"

#include <string>
#include <vector>

namespace vantrix::kernel {

/*
 * Reads files into a data set.
 *
 * Formats, told by the suffix: VTK XML (vti vtr vts vtp vtu vtm, and the parallel pvti pvtr pvts pvtp pvtu), legacy VTK
 * (vtk), CGNS (cgns), EnSight (case encas), Exodus (e exo ex2 exii), STL (stl), PLY (ply), and PLOT3D (bin xyz x g grd
 * p3d q), whose variants, binary and text, are told by trying. A PLOT3D solution is named together with its grid, in
 * any order; a grid may stand alone. Several files of other formats give one data set with the zones of all.
 *
 * Variables: "X", "Y", "Z", then what is known at the points, then what is known in the cells, of all zones together; a
 * zone that does not have one has no values for it. A vector `v` gives "v X", "v Y" and "v Z", a symmetric tensor
 * "v XX", "v YY", "v ZZ", "v XY", "v YZ", "v XZ", a full one "v XX", "v XY" ..., any other "v 1", "v 2" ...; components
 * that have names of their own keep them. Where a zone has the same name at its points and in its cells, the latter
 * gets " (cell)" behind it, in all zones. Integers that no type of ours holds become wider ones or double precision.
 *
 * What was read can leave the memory and come back from the files (FieldArray::unload(), VariableFiles).
 *
 * Zones: one for each block that has points, named after the block, or the file where there is but one. Tetrahedra,
 * pyramids, wedges and bricks in one block are bricks with corners that fall together, triangles and quadrilaterals
 * likewise; points, curves, surfaces, volumes and polyhedra of one block become a zone each. Cells of higher order
 * keep their corners. Single points become an ordered zone.
 */
class DataReader
{
public:
    /*
     * `dataSet` is empty. Throws DataError, with a text that names the file, the cause and what would be right, when a
     * file is missing, of no known format, damaged, not complete or without points, and ActionCancelled when `progress`
     * asked to stop. What `dataSet` holds then is to be thrown away. Prints nothing.
     */
    static void read(const std::vector<std::string>& files, DataSet& dataSet, const ReportProgress& progress);

    /*
     * Reads the same files again for the sake of one variable: `dataSet` gets the zones that it had, with the
     * coordinates, that variable and such as cannot be left out.
     */
    static void readVariable(const std::vector<std::string>& files, const std::string& variable, DataSet& dataSet);
};

} // namespace vantrix::kernel
