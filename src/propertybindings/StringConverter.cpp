#include "propertybindings/StringConverter.h"

#include "property/InvalidArgumentException.h"

#include <locale>
#include <sstream>
#include <typeinfo>

namespace vantrix::sdk::ui::dialogs::propertybindings::intern {

StringConverter::StringConverter(std::string text)
    : m_text(std::move(text))
{}

void StringConverter::convert(short& value) const
{
    extract(value);
}

void StringConverter::convert(int& value) const
{
    extract(value);
}

void StringConverter::convert(long& value) const
{
    extract(value);
}

void StringConverter::convert(double& value) const
{
    extract(value);
}

void StringConverter::convert(std::string& value) const
{
    value = m_text;
}

template<typename T>
void StringConverter::extract(T& value) const
{
    std::stringstream stream(m_text);
    stream.imbue(std::locale::classic());
    stream.unsetf(std::ios::skipws);
    stream >> value;
    if (stream.fail() || stream.bad()) {
        throw InvalidArgumentException("Cannot convert \"" + m_text + "\" to " + typeid(T).name());
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::intern
