#pragma once

#include "api/VtxEnumerations.h"

#include <vtkDataArray.h>
#include <vtkSmartPointer.h>

#include <functional>
#include <string>

namespace vantrix::kernel {

/*
 * The values of one variable in one zone.
 *
 * `values` has one component and as many tuples as the zone has points (nodal) or cells (cell-centred). It is shared
 * between zones, frames and undo steps and is never written in place once it is part of a zone: who changes values
 * makes a new array. Null values with a loader are not in memory and come back through it; null values without one mean
 * that the zone does not have the variable.
 */
struct FieldArray
{
    vtkSmartPointer<vtkDataArray> values;
    ValueLocation_e location = ValueLocation_Nodal;
    std::function<vtkSmartPointer<vtkDataArray>()> loader;

    bool isLoaded() const { return values != nullptr; }
    bool isAvailable() const { return values != nullptr || loader != nullptr; }

    /* The values, brought into memory for the caller where they are not; null when the zone does not have them. */
    vtkSmartPointer<vtkDataArray> load() const { return values || !loader ? values : loader(); }
};

} // namespace vantrix::kernel
