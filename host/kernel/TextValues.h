#pragma once

#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace vantrix::kernel {

struct Text;

/* One named value of a text, as the interface and files know it. Flags and enumerators are whole numbers. */
struct TextValue
{
    using Value = std::variant<long, double, std::string>;

    std::string_view name;
    Value (*get)(const Text& text);
    void (*set)(Text& text, const Value& value);
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    bool isMinimumExcluded = false;

    /* Sets a value of the right type within range; a whole number serves as a real one. Throws DataError, which names
     * the value and what would be right, and changes nothing otherwise. */
    void assign(Text& text, const Value& value) const;
};

/* All of them, in the order in which they are written. */
std::span<const TextValue> textValues();

/* Null for an unknown name. */
const TextValue* findTextValue(std::string_view name);

} // namespace vantrix::kernel
