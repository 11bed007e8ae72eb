#pragma once

#include <cstdint>

namespace vantrix::toolbox {

/// How many colours style values name by number.
inline constexpr int BASIC_COLOR_COUNT = 16;

/// The colour of a number, as 0xRRGGBB: 0 black, 1 red, 2 green, 3 blue, 4 cyan, 5 yellow, 6 purple, 7 white, then
/// softer ones. Numbers out of range give black.
std::uint32_t basicColor(long number);

/// What a colour is called, in English; "Black" for numbers out of range.
char const* basicColorName(long number);

} // namespace vantrix::toolbox
