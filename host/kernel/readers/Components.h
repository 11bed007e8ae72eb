#pragma once

#include <vtkDataArray.h>
#include <vtkSmartPointer.h>

#include <string>
#include <vector>

namespace vantrix::kernel::readers {

struct NamedValues
{
    std::string name;
    vtkSmartPointer<vtkDataArray> values;
};

/*
 * An array of a file as arrays of one component of the types that a zone has. An array that is one already is shared,
 * not copied. See DataReader for the names.
 */
std::vector<NamedValues> splitComponents(vtkDataArray& array, const std::string& name);

} // namespace vantrix::kernel::readers
