#pragma once

#include "api/VtxEnumerations.h"
#include "view/LineChains.h"

#include <vtkSmartPointer.h>

namespace vantrix::view {

struct Placement;

/*
 * The dashes of a pattern along lines, in the coordinates of the lines; the pattern runs on from segment to segment of
 * a chain. `length` is that of one repetition in the world where `placement` puts the lines. Scalars of points and
 * cells go along. In a flat plot only what the picture shows is made. Lines that are so long that there would be
 * millions of dashes come back as they are.
 */
vtkSmartPointer<vtkPolyData> dashedLines(vtkPolyData& lines, const std::vector<LineChain>& chains,
                                         LinePattern_e pattern, double length, const Placement& placement);

} // namespace vantrix::view
