#include "toolbox/StrUtil.h"

#include <algorithm>
#include <charconv>

namespace vantrix::toolbox {

std::string StrUtil::toUpper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return text;
}

bool StrUtil::scanForLgIndex(std::string const& text, long& index)
{
    char const* begin = text.data();
    char const* const end = begin + text.size();
    // from_chars takes a minus only.
    if (end - begin > 1 && *begin == '+' && begin[1] != '-') {
        ++begin;
    }
    long scanned = 0;
    auto const [last, error] = std::from_chars(begin, end, scanned);
    if (error != std::errc() || last != end) {
        return false;
    }
    index = scanned;
    return true;
}

} // namespace vantrix::toolbox
