#pragma once

#include <vtkSmartPointer.h>

class vtkPolyData;

namespace vantrix::view {

/*
 * Edges of the polygons of a surface: those of one polygon alone (borders), and those where two meet at more than 35
 * degrees (creases). The lines lie on the points of the surface, whose arrays go along; a line has the arrays of one of
 * its polygons.
 */
vtkSmartPointer<vtkPolyData> featureEdges(vtkPolyData& surface, bool hasBorders, bool hasCreases);

} // namespace vantrix::view
