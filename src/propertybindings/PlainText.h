#pragma once

#include <QString>

#include <string>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// The text that shows a value by itself, in the C locale: six significant digits for a double, as a stream writes it.
QString plainText(int value);
QString plainText(long value);
QString plainText(double value);

/// @param value  UTF-8
QString plainText(std::string const& value);

} // namespace vantrix::sdk::ui::dialogs::propertybindings
