#include "kernel/macro/CommandArguments.h"

#include "kernel/Enumerators.h"

#include <algorithm>

namespace vantrix::kernel {

namespace {

VtxArgList::Value listValue(const MacroCommand& command, const std::string& name, const MacroValue& value)
{
    if (isIdentifier(name)) {
        return identifierAtPlace(command, name);
    }
    if (name == axisArgument) {
        return static_cast<long>(FromMacro<char>(command, name).get());
    }
    if (const long* number = std::get_if<long>(&value)) {
        return *number;
    }
    if (const double* real = std::get_if<double>(&value)) {
        return *real;
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    if (const auto* numbers = std::get_if<std::set<long>>(&value)) {
        return VtxSet{*numbers};
    }
    throw DataError(command.name + ": \"" + name + "\" has to be a number, a text or a set.");
}

} // namespace

MacroValue enumeratorToMacro(const Parameter& parameter, long number)
{
    const char* name =
        parameter.enumeration ? enumeratorName(enumerationNamed(parameter.enumeration), number) : nullptr;
    return name ? MacroValue(std::string(name)) : MacroValue(number);
}

void describeList(MacroCommand& command, const Command& about, const VtxArgList& list)
{
    for (const auto& [name, value] : list.arguments) {
        const auto known = std::ranges::find(about.parameters, std::string_view(name), &Parameter::name);
        const Parameter parameter = known != about.parameters.end() ? *known : Parameter(name, nullptr);
        if (const long* number = std::get_if<long>(&value)) {
            command.add(name, name == axisArgument ? toMacro(parameter, static_cast<char>(*number))
                                                   : toMacro(parameter, *number));
        } else if (const double* real = std::get_if<double>(&value)) {
            command.add(name, *real);
        } else if (const auto* text = std::get_if<std::string>(&value)) {
            command.add(name, *text);
        } else if (const auto* set = std::get_if<VtxSet>(&value)) {
            command.add(name, set->members);
        }
    }
}

VtxArgList listFromMacro(const MacroCommand& command)
{
    VtxArgList list;
    for (const auto& [name, value] : command.arguments) {
        list.arguments.push_back({name, listValue(command, name, value)});
    }
    return list;
}

} // namespace vantrix::kernel
