#pragma once

#include <string>

namespace vantrix::kernel::readers {

/*
 * VTK fills with what happens to be in memory what an EnSight geometry or variable file that ends early does not have.
 * This walks through the files of a case, EnSight 6 or Gold, and throws DataError, which names the file, when one ends
 * before all is there that its counts promise. What it does not know is left to the reader. A file that is cut exactly
 * between two parts is a whole file of fewer parts.
 */
void expectWholeEnSight(const std::string& caseFile);

} // namespace vantrix::kernel::readers
