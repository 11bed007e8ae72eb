#pragma once

#include "kernel/BlankedZone.h"
#include "kernel/probe/ProbedCell.h"

#include <vtkDataSet.h>
#include <vtkGenericCell.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>
#include <vtkStaticCellLocator.h>
#include <vtkStaticPointLocator.h>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace vantrix::kernel {

using Position = std::array<double, 3>;

/* A place in a zone: a cell, and what each of its corners counts for there. */
struct MeshPlace
{
    long cell = -1;    /* of the mesh */
    Position position; /* on the mesh */
    double distance2 = 0.0;
    std::vector<long> points; /* of the zone, from 0 */
    std::vector<double> weights;
};

/*
 * The cells of one zone that are searched for a position: all of them, or those of its surface. The search structures
 * are built when they are first needed, in parallel, and kept.
 */
class ProbeMesh
{
public:
    enum class Part
    {
        Cells,        /* the zone's own */
        Surface,      /* the outer faces of a volume */
        ExposedFaces, /* the same, and the faces that blanking lays open */
        FirstLayer    /* the first K plane of an ordered volume, which a flat plot shows */
    };

    /* `grid` is the zone's, see zoneGrid(); `blanked`, which may be null, is not found. */
    ProbeMesh(const Zone& zone, vtkDataSet& grid, Part part, std::shared_ptr<const BlankedZone> blanked = nullptr);

    /* Whether the grid still has the very points and cells that this mesh was made of, and the same are blanked. */
    bool isOf(vtkDataSet& grid, const BlankedZone* blanked) const;

    /* Finds the cell that holds a position, beginning with `startCell` where that is not -1. */
    bool findInside(const Position& position, MeshPlace& place, long startCell = -1);

    /* Finds the place of the mesh that is closest, no further away than `radius`. */
    bool findClosest(const Position& position, double radius, MeshPlace& place);

    /* Finds the point that is closest, and of the cells that it is a corner of, if there are any, the one that holds
     * the position or is closest to it; the point counts for everything. */
    bool findNearestPoint(const Position& position, MeshPlace& place);

    /* Whether it has a cell with corners at all of these positions: that cell, or -1. */
    long cellWithCorners(const std::vector<Position>& corners);

    /* Where points of the zone are. */
    std::vector<Position> pointsAt(const std::vector<long>& points) const;

    /* The length of the diagonal of the box around the mesh. */
    double size() const;

    /* Whether a position is no further than `margin` from the box around the mesh. Builds nothing. */
    bool isNear(const Position& position, double margin) const;

    CellIndex cellIndex(const Zone& zone, long meshCell) const;
    ProbedCell probedCell(const Zone& zone, long meshCell) const;

    /* The cell of the mesh that is an element, or begins at a point, of the zone; -1 where there is none. */
    long findCell(const Zone& zone, const CellIndex& index) const;

    /* Positions in cell-centred arrays of the cells that a point is a corner of. Of a mesh of all cells only. */
    std::vector<long> cellsAround(long point);

    /* The number of different faces of all cells; counted once. Of a mesh of all cells only. */
    long faceCount();

private:
    bool isSurface() const { return m_part == Part::Surface || m_part == Part::ExposedFaces; }
    void makeSurface();
    void leaveOutBlanked();
    bool isTrimmed(const MeshPlace& place) const;
    bool evaluate(long cell, const Position& position, MeshPlace& place);
    void take(long cell, MeshPlace& place);
    long closestCell(vtkIdList& cells, const Position& position);
    vtkStaticCellLocator& cellLocator();
    vtkSmartPointer<vtkDataSet> leftPoints();
    vtkStaticPointLocator& pointLocator();
    long zonePoint(vtkIdType meshPoint) const;
    long zoneCell(long meshCell) const;

    Part m_part;
    vtkSmartPointer<vtkDataSet> m_grid;             /* points and cells of the zone */
    vtkSmartPointer<vtkDataSet> m_shape;            /* what is searched */
    std::shared_ptr<const BlankedZone> m_blanked;   /* null where nothing is */
    vtkSmartPointer<vtkIdTypeArray> m_pointNumbers; /* those of the zone; null where they are the mesh's own */
    std::optional<std::vector<long>> m_cellNumbers; /* the same; ascending but for a surface */
    std::vector<vtkIdType> m_leftPoints;            /* those that the point locator has, where some are blanked */
    vtkSmartPointer<vtkStaticCellLocator> m_cellLocator;
    vtkSmartPointer<vtkStaticPointLocator> m_pointLocator;
    vtkNew<vtkGenericCell> m_cell;
    std::vector<double> m_weights;
    long m_faceCount = -1;
};

} // namespace vantrix::kernel
