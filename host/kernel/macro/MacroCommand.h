#pragma once

#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vantrix::kernel {

/* A value of a macro: a whole number, a number, a text, a set of numbers from 1, or several texts. */
using MacroValue = std::variant<long, double, std::string, std::set<long>, std::vector<std::string>>;

/*
 * One command of a macro, or one entry of a layout: a name and named values. As text
 *
 *     FrameCreate Left=1.0 Top=0.5 Width=4.25 Height=3.0
 *     DataRead Files=["wing.vtu" "body.vtu"]
 *     DataSetDeleteZone Zones={1-3,7}
 *
 * Numbers are in the C locale, with as many digits as it takes to read the very same number; those that are not whole
 * by their nature have a point or an exponent. Texts stand in quotes, with \" \\ \n \t for the characters that would
 * end them and \xNN for other control characters; a plain word needs no quotes. Commands of one step stand on one line,
 * with "; " between them; what follows a # is a comment.
 */
struct MacroCommand
{
    using Argument = std::pair<std::string, MacroValue>;

    std::string name;
    std::vector<Argument> arguments;

    /* Null when there is no argument of that name. */
    const MacroValue* find(std::string_view argument) const;

    /* The argument as that type (a whole number serves as a number). Throws DataError that names it when it is missing
     * or of another type. */
    long integer(std::string_view argument) const;
    double real(std::string_view argument) const;
    const std::string& text(std::string_view argument) const;

    void add(std::string argument, MacroValue value);

    bool operator==(const MacroCommand&) const = default;
};

std::string macroText(const MacroValue& value);
std::string macroText(const MacroCommand& command);
std::string macroText(const std::vector<MacroCommand>& step);

/* The first line of a file without the mark that some editors put before UTF-8 text. */
std::string_view withoutByteOrderMark(std::string_view line);

/* The commands of a line; none for one that is empty or a comment. Throws DataError that names the column, from 1, and
 * what was expected there. */
std::vector<MacroCommand> parseMacroLine(std::string_view line);

} // namespace vantrix::kernel
