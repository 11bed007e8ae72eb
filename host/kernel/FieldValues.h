#pragma once

#include "api/VtxEnumerations.h"
#include "kernel/DataSet.h"

#include <vtkDataArray.h>
#include <vtkSmartPointer.h>

#include <optional>

namespace vantrix::kernel {

struct ValueRange
{
    double minimum;
    double maximum;
};

/* A new array of one component; its values are not set. Throws DataError when the memory is not to be had. */
vtkSmartPointer<vtkDataArray> makeValues(FieldDataType_e type, long count);

/* The same with every value 0. */
vtkSmartPointer<vtkDataArray> makeZeros(FieldDataType_e type, long count);

/* Bytes that a value of a type takes (1 for a bit). */
long valueSize(FieldDataType_e type);

/* The type of an array's values. Every array of a zone has one of these. */
FieldDataType_e valueType(const vtkDataArray& values);

/* Smallest and largest value, NaN left out; nothing where there is no other value. Found once for each array. */
std::optional<ValueRange> valueRange(vtkDataArray& values);

/* The same for a variable over all enabled zones; values that are not in memory are left out. */
std::optional<ValueRange> variableRange(const DataSet& dataSet, long variable);

/* Bytes of memory that can be had without driving the machine into swapping; see makeValues(). */
double availableMemory();

} // namespace vantrix::kernel
