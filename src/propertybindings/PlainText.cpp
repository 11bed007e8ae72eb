#include "propertybindings/PlainText.h"

#include <array>
#include <charconv>

namespace vantrix::sdk::ui::dialogs::propertybindings {

namespace {

constexpr int digitsOfDouble = 6;

QString asText(auto number, auto... format)
{
    std::array<char, 32> text;
    char const* const end = std::to_chars(text.data(), text.data() + text.size(), number, format...).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

} // namespace

QString plainText(int value)
{
    return asText(value);
}

QString plainText(long value)
{
    return asText(value);
}

QString plainText(double value)
{
    return asText(value, std::chars_format::general, digitsOfDouble);
}

QString plainText(std::string const& value)
{
    return QString::fromStdString(value);
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
