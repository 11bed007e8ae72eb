#pragma once

#include <string>

/// Index notation of the index fields: 0 stands for the largest index of its kind and is written "Mx", -n for n below
/// it
/// ("Mx-3"); a positive number is a plain index.
namespace vantrix::sdk::ui::util {

std::string LgIndexToMxNotation(long const& index);

/// Reads what LgIndexToMxNotation() writes; case, blanks and tabs do not matter.
/// @throws vantrix::InvalidArgumentException for a text that holds no index after "Mx" is taken away
long MxNotationToLgIndex(std::string const& text);

/// The pattern of "Mx" and "Mx-n" (n of up to ten digits), to be matched against the whole text.
std::string const& mxIndexPattern();

/// The pattern of a plain index of up to ten digits, possibly negative, to be matched against the whole text.
std::string const& plainIndexPattern();

/// True exactly for a text that is in neither form. The sense is the opposite of what the name suggests; it is kept
/// for those who count on it. Ask the patterns to find out whether a text is an index.
bool isValidMxNotation(std::string const& text);

} // namespace vantrix::sdk::ui::util
