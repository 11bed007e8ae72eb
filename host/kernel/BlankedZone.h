#pragma once

#include "api/VtxEnumerations.h"

#include <vtkDataArray.h>
#include <vtkWeakPointer.h>

#include <memory>
#include <vector>

namespace vantrix::kernel {

/* The points and cells of a zone that blanking leaves out. */
struct BlankedZone
{
    std::vector<unsigned char> points; /* as many as the zone has; 1 for one that is left out */
    std::vector<unsigned char> cells;  /* the same of those left out whole */

    /* Cells are trimmed where one of these, linear between its points, is not above 0. One number a point each. */
    std::vector<std::vector<double>> trimming;
};

/* What was found for one zone, at most a few results: see ValueBlanking::of(). */
struct BlankedZoneCache
{
    /* A constraint with the values that it compares. They are not kept in memory: without them, no key is equal. */
    struct Comparison
    {
        RelOp_e relation;
        double number;
        vtkWeakPointer<vtkDataArray> values;
        ValueLocation_e location;
        vtkWeakPointer<vtkDataArray> otherValues; /* null for the number */
        ValueLocation_e otherLocation;
        bool isWithNumber;
    };
    struct Entry
    {
        std::vector<Comparison> comparisons;
        ValueBlankCellMode_e cellMode;
        bool trimsCells;
        bool isFlat;
        std::shared_ptr<const BlankedZone> blanked;
    };

    std::vector<Entry> entries; /* the one used last in front */
};

} // namespace vantrix::kernel
