#pragma once

#include <string>

namespace vantrix::toolbox {

/// Operations on strings that do not depend on the user's locale.
class StrUtil
{
public:
    StrUtil() = delete;

    /// The letters a to z as A to Z; every other byte as it is.
    static std::string toUpper(std::string text);

    /// Reads an optional sign and decimal digits, and nothing else, into a 64-bit index.
    /// @return false, with `index` as it was, for any other text and for a number that 64 bits do not hold
    static bool scanForLgIndex(std::string const& text, long& index);
};

} // namespace vantrix::toolbox
