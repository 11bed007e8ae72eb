#include "propertybindings/MxNotationConverter.h"

#include "property/InvalidArgumentException.h"
#include "toolbox/StrUtil.h"

#include <boost/format.hpp>

#include <algorithm>
#include <locale>
#include <regex>

namespace vantrix::sdk::ui::util {

std::string const& mxIndexPattern()
{
    static std::string const pattern = R"(\s*[Mm][Xx]\s*(-\s*\d{1,10}\s*)?)";
    return pattern;
}

std::string const& plainIndexPattern()
{
    static std::string const pattern = R"(\s*(-\s*)?\d{1,10}\s*)";
    return pattern;
}

std::string LgIndexToMxNotation(long const& index)
{
    if (index > 0) {
        return std::to_string(index);
    }
    return index == 0 ? "Mx" : (boost::format("Mx%1%", std::locale::classic()) % index).str();
}

long MxNotationToLgIndex(std::string const& text)
{
    std::string index = toolbox::StrUtil::toUpper(text);
    std::erase_if(index, [](char c) { return c == ' ' || c == '\t'; });
    if (auto const mx = index.find("MX"); mx != std::string::npos) {
        index.erase(mx, 2);
    }
    long result = 0;
    if (!index.empty() && !toolbox::StrUtil::scanForLgIndex(index, result)) {
        throw InvalidArgumentException("\"" + text + "\" is not an index: write a whole number, Mx, or Mx-n.");
    }
    return result;
}

bool isValidMxNotation(std::string const& text)
{
    static std::regex const mx(mxIndexPattern());
    static std::regex const plain(plainIndexPattern());
    return !std::regex_match(text, mx) && !std::regex_match(text, plain);
}

} // namespace vantrix::sdk::ui::util
