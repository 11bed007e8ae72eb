#include "kernel/TextValues.h"

#include "kernel/DataError.h"
#include "kernel/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>
#include <type_traits>

namespace vantrix::kernel {
namespace {

using Value = TextValue::Value;

template<class>
struct MemberType;

template<class Member>
struct MemberType<Member Text::*>
{
    using Type = Member;
};

template<auto member>
Value get(const Text& text)
{
    using Type = typename MemberType<decltype(member)>::Type;
    if constexpr (std::is_same_v<Type, std::string> || std::is_same_v<Type, double>) {
        return text.*member;
    } else {
        return static_cast<long>(text.*member);
    }
}

template<auto member>
void set(Text& text, const Value& value)
{
    using Type = typename MemberType<decltype(member)>::Type;
    if constexpr (std::is_same_v<Type, std::string> || std::is_same_v<Type, double>) {
        text.*member = std::get<Type>(value);
    } else {
        text.*member = static_cast<Type>(std::get<long>(value));
    }
}

template<auto member>
constexpr TextValue value(std::string_view name)
{
    return {name, &get<member>, &set<member>};
}

template<auto member>
constexpr TextValue value(std::string_view name, double minimum, double maximum)
{
    return {name, &get<member>, &set<member>, minimum, maximum};
}

template<auto member>
constexpr TextValue positive(std::string_view name)
{
    return {name, &get<member>, &set<member>, 0.0, std::numeric_limits<double>::infinity(), true};
}

constexpr double lastColor = 63.0;

constexpr std::array values{
    value<&Text::text>("Text"),
    value<&Text::coordSys>("PositionCoordSys", CoordSys_Grid, CoordSys_Grid3D),
    value<&Text::x>("XPos"),
    value<&Text::y>("YPos"),
    value<&Text::z>("ZPos"),
    value<&Text::fontFamily>("FontFamily"),
    value<&Text::sizeUnits>("SizeUnits", Units_Grid, Units_Point),
    positive<&Text::height>("Height"),
    value<&Text::macroFunctionCommand>("MacroFunctionCommand"),
    value<&Text::color>("TextColor", 0.0, lastColor),
    value<&Text::isBold>("IsBold", 0.0, 1.0),
    value<&Text::isItalic>("IsItalic", 0.0, 1.0),
    value<&Text::angle>("Angle", -360.0, 360.0),
    positive<&Text::lineSpacing>("LineSpacing"),
    value<&Text::anchor>("Anchor", TextAnchor_BottomLeft, TextAnchor_TopRight),
    value<&Text::type>("TextType", TextType_Regular, TextType_LaTeX),
    value<&Text::box>("BoxType", TextBox_None, TextBox_Hollow),
    positive<&Text::boxLineThickness>("LineThickness"),
    value<&Text::boxColor>("Color", 0.0, lastColor),
    value<&Text::boxFillColor>("FillColor", 0.0, lastColor),
    value<&Text::boxMargin>("Margin", 0.0, 2000.0),
};

std::string rangeText(const TextValue& about)
{
    std::ostringstream range;
    range.imbue(std::locale::classic());
    if (about.isMinimumExcluded) {
        range << "a number above " << about.minimum;
    } else if (std::isfinite(about.maximum)) {
        range << "a number from " << about.minimum << " to " << about.maximum;
    } else {
        range << "a finite number";
    }
    return range.str();
}

} // namespace

void TextValue::assign(Text& text, const Value& given) const
{
    const bool isReal = std::holds_alternative<double>(get(text));
    const Value converted =
        isReal && std::holds_alternative<long>(given) ? Value(double(std::get<long>(given))) : given;
    if (converted.index() != get(text).index()) {
        const char* type = isReal                                    ? "a number"
                           : std::holds_alternative<long>(get(text)) ? "a whole number"
                                                                     : "a string";
        throw DataError('"' + std::string(name) + "\" of a text is " + type + '.');
    }
    if (!std::holds_alternative<std::string>(converted)) {
        const double number = isReal ? std::get<double>(converted) : double(std::get<long>(converted));
        const bool isInside =
            std::isfinite(number) && number <= maximum && (isMinimumExcluded ? number > minimum : number >= minimum);
        if (!isInside) {
            throw DataError('"' + std::string(name) + "\" of a text has to be " + rangeText(*this) + '.');
        }
    }
    set(text, converted);
}

std::span<const TextValue> textValues()
{
    return values;
}

const TextValue* findTextValue(std::string_view name)
{
    const auto found =
        std::find_if(values.begin(), values.end(), [&](const TextValue& each) { return each.name == name; });
    return found == values.end() ? nullptr : &*found;
}

} // namespace vantrix::kernel
