#pragma once

#include <set>

namespace vantrix::kernel {

class Frame;
class StyleStore;

/* The numbers of the variables that a frame's plot is made of in its present style: axes, contours, vectors, line maps,
 * blanking, colours and sizes by variable. */
std::set<long> shownVariables(const StyleStore& style, const Frame& frame);

} // namespace vantrix::kernel
