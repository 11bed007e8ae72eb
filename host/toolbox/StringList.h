#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace vantrix::toolbox {

/// Strings in order, such as the names of a style path.
class StringList
{
public:
    using const_iterator = std::vector<std::string>::const_iterator;

    StringList() = default;
    StringList(std::initializer_list<std::string> strings);

    void append(std::string string);

    /// These strings and one more behind them: a base path and a key.
    StringList operator+(std::string const& string) const;

    bool isEmpty() const { return m_strings.empty(); }
    std::size_t size() const { return m_strings.size(); }
    /// @param index  from 0, below size()
    std::string const& operator[](std::size_t index) const { return m_strings[index]; }
    const_iterator begin() const { return m_strings.begin(); }
    const_iterator end() const { return m_strings.end(); }

    bool operator==(StringList const&) const = default;

private:
    std::vector<std::string> m_strings;
};

} // namespace vantrix::toolbox
