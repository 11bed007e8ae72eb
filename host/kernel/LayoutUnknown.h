#pragma once

#include "kernel/macro/MacroCommand.h"

#include <compare>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace vantrix::kernel {

/* What a layout file held that the program does not know, and writes again when the layout is saved. */
struct LayoutUnknown
{
    /* Whole lines, of each page and frame by its identifier; 0 of none in particular. */
    std::map<long, std::vector<std::string>> lines;

    /* Arguments of lines that are known: of the heads of data sets, pages and frames by identifier, of the objects of
     * frames by handle, and of the layout's own head under 0. No two of these have the same number. */
    std::map<long, std::vector<MacroCommand::Argument>> arguments;

    /* Arguments of the states of data sets, by the identifier of the data set. */
    std::map<long, std::vector<MacroCommand::Argument>> ofDataStates;

    struct StylePlace
    {
        long entry;
        long offset1;
        long offset2;
        auto operator<=>(const StylePlace&) const = default;
    };

    /* The same of the lines of style values, of each page and frame by its identifier. */
    std::map<long, std::map<StylePlace, std::vector<MacroCommand::Argument>>> styleArguments;

    struct Disabled
    {
        std::set<long> zones;
        std::set<long> variables;
    };

    /* What is to take no part and is not there, of each data set by its identifier. */
    std::map<long, Disabled> disabled;

    /* All of it for the user, in the order of the file. */
    std::vector<std::string> texts;
};

} // namespace vantrix::kernel
