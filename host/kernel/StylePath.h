#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrix::kernel {

/* The number of one name of the vocabulary; -1 for a name that no path has. */
long styleNameId(std::string_view name);

/* The entry of a path given by the numbers of its names; -1 when there is none. */
long styleEntryOf(const long* nameIds, std::size_t count);

/* The longest part of a path that the vocabulary knows, as "FrameLayout" / "XYPos"; empty when not even the first
 * name begins a path. */
std::string knownPartOfStylePath(const long* nameIds, std::size_t count);

/* FrameLayout/XYPos/X, as StyleStore::entry() takes it. */
std::string stylePath(long entry);

/* "FrameLayout" / "XYPos" / "X", for messages. */
std::string stylePathText(long entry);

} // namespace vantrix::kernel
