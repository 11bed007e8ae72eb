#pragma once

#include "kernel/macro/MacroCommand.h"

#include <string_view>

/*
 * Frames, texts and geometries in macros. Their identifiers do not last beyond a session, so they are written by their
 * places:
 *
 *     Frame=2                            a position on the active page, from 1, the lowest
 *     TextID=2                           a position among the texts of the active frame, the one drawn first being 1
 *     TextID="2 of frame 3"              of another frame of the active page
 *     TextID="2 of frame 3 of page 1"    of another page
 *     GeometryID=2                       the same of geometries
 */
namespace vantrix::kernel {

inline constexpr const char* frameArgument = "Frame";
inline constexpr const char* textArgument = "TextID";
inline constexpr const char* geometryArgument = "GeometryID";

/* Whether an argument of that name is an identifier. */
bool isIdentifier(std::string_view argument);

/* The place of what has the identifier. */
MacroValue placeOfIdentifier(std::string_view argument, long identifier);

/* The identifier of what is at the argument's place. Throws DataError where there is nothing. */
long identifierAtPlace(const MacroCommand& command, std::string_view argument);

} // namespace vantrix::kernel
