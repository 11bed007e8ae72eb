#pragma once

#include <string>

namespace vantrix::kernel::readers {

/*
 * VTK leaves a block or a piece away whose file is not there. This looks for every file that a VTK XML file of
 * multi-block or parallel data names, and throws DataError, which tells the first that cannot be opened.
 */
void expectReferencedFiles(const std::string& file);

} // namespace vantrix::kernel::readers
