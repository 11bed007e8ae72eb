#pragma once

#include <string>

namespace vantrix::kernel::readers {

/*
 * Throws DataError when a binary legacy file ends within one of its arrays, naming the array: VTK reads past the end of
 * such a file. A text file and one that is no legacy file pass; VTK itself refuses those.
 */
void expectWholeLegacyFile(const std::string& file);

} // namespace vantrix::kernel::readers
