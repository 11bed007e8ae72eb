#pragma once

#include <boost/format.hpp>

#include <QString>

#include <locale>
#include <string>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// The format of a value by itself, in the default text form of its type: six significant digits for a double.
inline std::string const plainValueFormat = "%1%";

/// The text that shows a value, in the C locale.
/// @param format  of boost::format, with one place
template<typename T>
QString formatValue(std::string const& format, T const& value)
{
    return QString::fromStdString((boost::format(format, std::locale::classic()) % value).str());
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
