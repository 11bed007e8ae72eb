#pragma once

#include "api/VtxEnumerations.h"
#include "kernel/BlankedZone.h"

#include <memory>
#include <vector>

namespace vantrix::kernel {

class DataSet;
class Frame;
class StyleStore;

/* Blanks where one variable compares so with another, or with a number. */
struct BlankingConstraint
{
    long variable = 0;
    RelOp_e relation = RelOp_LessThanOrEqual;
    long otherVariable = 0; /* 0 for the number */
    double number = 0.0;

    bool operator==(const BlankingConstraint&) const = default;

    static constexpr long count = 8; /* of a frame */

    /* The constraint of a number, 1 to `count`, in use or not. */
    static BlankingConstraint read(const StyleStore& style, long frame, long number);
};

/*
 * The value blanking of a frame, "Blanking" / "Value" of its style: what of each zone the frame's plot leaves out.
 *
 * A point is left out where any constraint holds for its values; values that are no numbers make no constraint hold
 * but "is not equal to". A cell goes by its corners as the cell mode says, its primary value being that of its first
 * corner; a constraint on a cell-centred variable decides on the cell itself (a nodal one it is compared with counts
 * with the mean of the corners). A 2D plot may trim cells in place of blanking whole ones: it leaves out just the part
 * where the linearly interpolated values meet a constraint. Equality cannot be trimmed: "is equal to" blanks cells all
 * of whose corners are equal, "is not equal to" those of which any is not.
 */
class ValueBlanking
{
public:
    /* The constraints that are in use; without any, nothing is left out. */
    std::vector<BlankingConstraint> constraints;
    ValueBlankCellMode_e cellMode = ValueBlankCellMode_AllCorners;
    bool trimsCells = false;
    bool isFlat = false; /* a 2D plot, which has the first K layer of a volume alone */

    bool operator==(const ValueBlanking&) const = default;

    static ValueBlanking read(const StyleStore& style, const Frame& frame);

    bool isActive() const { return !constraints.empty(); }

    /*
     * What is left out of a zone, or null when nothing is. It is kept with the zone: the same object until the
     * constraints or the values that they compare are others. Loads those values; throws DataError when that fails.
     */
    std::shared_ptr<const BlankedZone> of(const DataSet& dataSet, long zone) const;
};

} // namespace vantrix::kernel
