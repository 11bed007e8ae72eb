#pragma once

#include "kernel/ValueBlanking.h"
#include "kernel/ZoneGrid.h"
#include "kernel/probe/ShownPlanes.h"

#include <vtkGenericCell.h>
#include <vtkIdTypeArray.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPointSet.h>
#include <vtkSmartPointer.h>
#include <vtkStaticCellLocator.h>

#include <optional>
#include <vector>

namespace vantrix::kernel {

/* What of the zones a streamtrace passes. */
enum class TracedPart
{
    Plane,   /* the cells that a 2D plot shows */
    Volume,  /* the inside of volumes */
    Surface, /* the surfaces that a 3D plot shows */
};

TracedPart tracedPart(Streamtrace_e type);

/* Everything that decides what a velocity field is, besides the data. */
struct VelocitySource
{
    /* A zone that takes part, and, of an ordered volume, the planes that are shown of it in place of its outside. */
    struct ZonePart
    {
        long zone = 0;
        std::vector<ShownPlanes::Plane> planes;

        bool operator==(const ZonePart&) const = default;
    };

    TracedPart part = TracedPart::Plane;
    CoordinateVariables coordinates{0, 0, 0};
    std::array<long, 3> vectors{0, 0, 0}; /* variables of the parts along X, Y and Z; 0 for none */
    std::vector<ZonePart> zones;
    ValueBlanking blanking; /* cells that are blanked are left out */

    bool operator==(const VelocitySource&) const = default;

    /* What streamtraces of a frame pass. `obeysBlanking` leaves out what the frame blanks. */
    static VelocitySource read(const StyleStore& style, const Frame& frame, TracedPart part, bool obeysBlanking);

    bool hasVectors() const { return vectors != std::array<long, 3>{0, 0, 0}; }
};

/* The cells that streamtraces pass, zone by zone, with a vector at each point. */
class VelocityField
{
public:
    static constexpr auto arrayName = "vxVelocity";

    struct Block
    {
        long zone = 0;
        vtkSmartPointer<vtkPointSet> cells;           /* with the vectors */
        vtkSmartPointer<vtkIdTypeArray> pointNumbers; /* of the zone, from 0, of each point */
    };

    /* Loads the vectors; throws DataError where that fails. */
    VelocityField(const DataSet& dataSet, const VelocitySource& source);

    const std::vector<Block>& blocks() const { return m_blocks; }
    vtkMultiBlockDataSet& dataSet() const { return *m_dataSet; }

    /* The values of a variable at the points of a block, of a cell-centred one the means of the cells around them; null
     * where the zone does not have it. Throws DataError when they cannot be loaded. */
    vtkSmartPointer<vtkDataArray> valuesAtPoints(const Block& block, const DataSet& dataSet, long variable) const;

    /* Finds the cells along a way: the cell found last is looked at first. */
    class CellSearch
    {
    public:
        explicit CellSearch(const VelocityField& field)
            : m_field(field)
        {}

        /* Null where there is no cell; else points() of the block and their weights() are what the place is made of. */
        const Block* find(const std::array<double, 3>& place);
        /* The nearest place in a cell, as near as find() takes it for being in it. */
        std::optional<std::array<double, 3>> closest(const std::array<double, 3>& place);

        const std::vector<vtkIdType>& points() const { return m_points; }
        const std::vector<double>& weights() const { return m_weights; }

    private:
        bool isIn(const Block& block, vtkIdType cell, const std::array<double, 3>& place, bool isExact);

        const VelocityField& m_field;
        const Block* m_block = nullptr;
        vtkIdType m_cellNumber = -1;
        std::array<double, 3> m_closest{};
        vtkNew<vtkGenericCell> m_cell;
        std::vector<vtkIdType> m_points;
        std::vector<double> m_weights;
    };

    /* The length of the diagonal of the box around it. */
    double size() const;

private:
    vtkStaticCellLocator& locator(const Block& block) const;

    CoordinateVariables m_coordinates;
    std::vector<Block> m_blocks;
    mutable std::vector<vtkSmartPointer<vtkStaticCellLocator>> m_locators; /* of the blocks, made when needed */
    vtkSmartPointer<vtkMultiBlockDataSet> m_dataSet;
};

} // namespace vantrix::kernel
