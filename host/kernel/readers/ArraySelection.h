#pragma once

#include <string>

class vtkAlgorithm;

namespace vantrix::kernel::readers {

/* Lets a reader read of all arrays only those that may give a variable, where it can choose. */
void selectArraysOf(vtkAlgorithm& reader, const std::string& variable);

} // namespace vantrix::kernel::readers
