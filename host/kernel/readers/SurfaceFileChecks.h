#pragma once

#include <string>

namespace vantrix::kernel::readers {

/* VTK takes a binary STL file that ends early for a smaller one, and ends the process at such a PLY file. These look
 * whether all is there that the header promises, and throw DataError when it is not. */
void expectWholeStl(const std::string& file);

/* Returns what the file holds, so that it is read once. */
std::string expectWholePly(const std::string& file);

} // namespace vantrix::kernel::readers
