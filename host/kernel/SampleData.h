#pragma once

#include "kernel/DataSet.h"

#include <string>
#include <vector>

namespace vantrix::kernel {

/*
 * Built-in data sets, made from formulas:
 *   "flow3d"     ordered; flow with a vortex street behind a tapered tower: X Y Z U V W Pressure Temperature
 *   "fe2d"       quadrilaterals and triangles; stresses in a stretched plate with a hole (Kirsch)
 *   "lines"      four one-dimensional zones; damped oscillations over time
 *   "polar"      three one-dimensional zones; a field over the angle, in degrees
 *   "polyhedra"  a block of truncated octahedra with a nodal and a cell-centred variable
 *   "mixed"      one zone each of bricks, tetrahedra, quadrilaterals, triangles and line segments
 */
class SampleData
{
public:
    static std::vector<std::string> names();

    /* Fills an empty data set (see Document::newDataSet()). Throws DataError for a name that is none of names(). */
    static void make(const std::string& name, DataSet& dataSet);
};

} // namespace vantrix::kernel
