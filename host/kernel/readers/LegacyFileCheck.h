#pragma once

#include <string>

namespace vantrix::kernel::readers {

/* VTK 9.1 reads through a null pointer where a binary legacy file ends within its points. Throws DataError when the
 * points that the file announces are not all there; what follows them VTK checks. */
void expectWholeLegacyPoints(const std::string& file);

} // namespace vantrix::kernel::readers
