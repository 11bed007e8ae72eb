#pragma once

#include "api/VtxEnumerations.h"

#include <vtkDataArray.h>
#include <vtkSmartPointer.h>
#include <vtkWeakPointer.h>

#include <functional>

namespace vantrix::kernel {

/*
 * The values of one variable in one zone.
 *
 * `values` has one component and as many tuples as the zone has points (nodal) or cells (cell-centred). It is shared
 * between zones, frames and undo steps and is never written in place once it is part of a zone: who changes values
 * makes a new array. Null values with a loader are not in memory and come back through it; null values without one mean
 * that the zone does not have the variable. Whether values are in memory is no part of what a zone is: load() and
 * unload() change it in place. Code that needs values calls load() first.
 */
struct FieldArray
{
    mutable vtkSmartPointer<vtkDataArray> values = nullptr;
    ValueLocation_e location = ValueLocation_Nodal;

    /* Reads the values again from where they came. Throws DataError when that cannot be done any more. */
    std::function<vtkSmartPointer<vtkDataArray>()> loader = {};

    /* What the loader gave last, or would give: only those values can be unloaded, not ones that were changed since. */
    mutable vtkWeakPointer<vtkDataArray> loaded = nullptr;

    bool isLoaded() const { return values != nullptr; }
    bool isAvailable() const { return values != nullptr || loader != nullptr; }

    /* The values, brought into memory where they are not; null when the zone does not have them. Throws like `loader`.
     */
    vtkSmartPointer<vtkDataArray> load() const;

    /* Lets go of values that can be read again; they leave the memory with the last who uses them. False for others. */
    bool unload() const;

    /* The order in which variables were asked for; the larger, the later. 0 for one that nobody asked for. */
    mutable unsigned long lastUse = 0;
    static unsigned long latestUse();
};

} // namespace vantrix::kernel
