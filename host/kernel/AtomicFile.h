#pragma once

#include <string>

namespace vantrix::kernel {

/* Gives a file a content at once: it is written beside the file and takes its place when it is whole, so that after a
 * failure or a crash the file is as it was. Throws DataError, with file and cause, when it cannot be written. */
void replaceFile(const std::string& file, const std::string& content);

} // namespace vantrix::kernel
