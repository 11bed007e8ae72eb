#pragma once

#include "kernel/DataSet.h"

#include <string>
#include <vector>

/* What tests of the reader ask again and again. */
namespace readfiles {

vantrix::kernel::DataSet readFiles(const std::vector<std::string>& files);

/* The text with which reading is refused; a file that is bad must not write to the standard error. */
std::string refusal(const std::vector<std::string>& files);

/* A value by its index from 0; a failure of the test when there is none. */
double at(const vantrix::kernel::DataSet& dataSet, const std::string& variable, long index, long zone = 1);

/* Of the variables. */
std::vector<std::string> names(const vantrix::kernel::DataSet& dataSet);

/* The bytes of a file. */
std::string contents(const std::string& file);

} // namespace readfiles
