#pragma once

#include "kernel/Zone.h"

#include <array>
#include <vector>

class vtkUnstructuredGrid;

namespace vantrix::kernel {

/*
 * Which cell of a zone: a finite element, or a cell of an ordered zone. The latter belongs to a family: to the volume
 * cells, or to the planes of constant I, J or K that a surface is made of.
 */
struct CellIndex
{
    long storage = 0;                     /* position of its value in a cell-centred array, from 0 */
    std::array<long, 3> first{0, 0, 0};   /* I, J and K, from 0, of its first corner; ordered zones only */
    IJKPlanes_e plane = IJKPlanes_Volume; /* ordered zones only */
};

/* A cell with its corners and what lies around it. Points count from 0. */
struct ProbedCell
{
    struct Face
    {
        std::vector<long> points;
        long neighbor = 0;     /* number of the cell behind it; 0 at the border */
        long neighborZone = 0; /* 0 where that is the same one */
    };

    /* From 1; of an ordered zone that of its first corner among the points of the zone. */
    long number = 0;
    CellIndex index;
    std::vector<long> corners;
    std::vector<Face> faces; /* of a flat cell its edges, of a line its ends */
    long face = 0;           /* of an element of a volume the face that was met, from 1; 0 for its inside */

    /* The face that has these points, in any order; 0 where there is none. */
    long faceWith(const std::vector<long>& points) const;

    /* `grid` is the zone's, and builds its links when it has none yet. */
    static ProbedCell ofElement(vtkUnstructuredGrid& grid, long element);
    static ProbedCell ofOrdered(const Zone& zone, const CellIndex& index);
};

/* I, J and K of a point, from 0, and back. */
std::array<long, 3> pointIndices(const Zone& zone, long point);
long pointNumber(const Zone& zone, const std::array<long, 3>& indices);

/* The cell with that first corner; the last plane of a direction belongs to the cells before it. */
CellIndex orderedCellIndex(const Zone& zone, const std::array<long, 3>& first, IJKPlanes_e plane);

} // namespace vantrix::kernel
