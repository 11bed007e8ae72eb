#include "toolbox/StringList.h"

#include <utility>

namespace vantrix::toolbox {

StringList::StringList(std::initializer_list<std::string> strings)
    : m_strings(strings)
{}

void StringList::append(std::string string)
{
    m_strings.push_back(std::move(string));
}

StringList StringList::operator+(std::string const& string) const
{
    StringList result(*this);
    result.append(string);
    return result;
}

} // namespace vantrix::toolbox
