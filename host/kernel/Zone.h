#pragma once

#include "api/VtxEnumerations.h"
#include "kernel/BlankedZone.h"
#include "kernel/FieldArray.h"
#include "kernel/ZoneGridCache.h"

#include <vtkCellArray.h>
#include <vtkSmartPointer.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace vantrix::kernel {

/*
 * One zone: a topology and, for each variable of the data set, an array. A zone is immutable once it is part of a data
 * set (it is held as a pointer to const); an edit copies the zone, which shares all arrays, and replaces what changes.
 */
class Zone
{
public:
    /* An ordered zone of I x J x K points (each at least 1), I running fastest. */
    static Zone ordered(std::string name, long iMax, long jMax, long kMax);

    /*
     * A finite-element zone of one kind of cells. `cells` holds the point numbers (from 0) of each cell: for polygons
     * any number a cell; for polyhedra the points of each cell, and `faces` the face streams as vtkUnstructuredGrid
     * keeps them (`faceLocations` one start a cell).
     */
    static Zone finiteElement(std::string name, ZoneType_e type, long pointCount, vtkSmartPointer<vtkCellArray> cells);

    /* A number that no other zone of the process has; copies keep it, so that a zone is known again whatever was
     * edited of it and wherever it is in its data set. */
    long identity() const { return m_identity; }

    const std::string& name() const { return m_name; }
    void setName(std::string name) { m_name = std::move(name); }

    ZoneType_e type() const { return m_type; }
    bool isOrdered() const { return m_type == ZoneType_Ordered; }

    /* Points along I, J and K of an ordered zone; {points, cells, corners a cell} of a finite-element zone. */
    std::array<long, 3> dimensions() const { return m_dimensions; }

    long pointCount() const;
    long cellCount() const;

    /* 0 a point, 1 a curve, 2 a surface, 3 a volume. */
    int topologicalDimension() const;

    /* Connectivity of a finite-element zone; null for an ordered one. */
    vtkCellArray* cells() const { return m_cells; }

    vtkSmartPointer<vtkIdTypeArray> polyhedronFaces;
    vtkSmartPointer<vtkIdTypeArray> polyhedronFaceLocations;

    /* One array a variable, in the order of the data set's variables. */
    std::vector<FieldArray> fields;

    double solutionTime = 0.0;

    /* What zoneGrid() keeps of this zone; freed with it. */
    ZoneGridCache& grids() const { return m_grids; }

    /* What ValueBlanking found for this zone; a copy of the zone starts with it. */
    BlankedZoneCache& blankings() const { return m_blankings; }

private:
    Zone();

    long m_identity;
    std::string m_name;
    ZoneType_e m_type = ZoneType_Ordered;
    std::array<long, 3> m_dimensions{1, 1, 1};
    vtkSmartPointer<vtkCellArray> m_cells;
    mutable ZoneGridCache m_grids;
    mutable BlankedZoneCache m_blankings;
};

} // namespace vantrix::kernel
