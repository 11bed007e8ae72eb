#pragma once

#include "kernel/DataError.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/macro/Commands.h"
#include "kernel/macro/Identifiers.h"
#include "kernel/macro/MacroCommand.h"

#include <string_view>
#include <type_traits>

/* How arguments of the interface's functions are written in a macro and read from it, by their types. */
namespace vantrix::kernel {

/* By name where it is an enumerator, else the number. */
MacroValue enumeratorToMacro(const Parameter& parameter, long number);

template<class Type>
MacroValue toMacro(const Parameter& parameter, Type value)
{
    if constexpr (std::is_same_v<Type, double>) {
        return value;
    } else if constexpr (std::is_same_v<Type, char>) {
        return std::string(1, value);
    } else if constexpr (std::is_same_v<Type, const char*>) {
        return std::string(value ? value : "");
    } else if constexpr (std::is_same_v<Type, VtxSetHandle>) {
        return value ? value->members : std::set<long>();
    } else {
        const long number = static_cast<long>(value);
        return isIdentifier(parameter.name) ? placeOfIdentifier(parameter.name, number)
                                            : enumeratorToMacro(parameter, number);
    }
}

/* Holds an argument read from a macro for as long as the call lasts. */
template<class Type>
class FromMacro
{
public:
    FromMacro(const MacroCommand& command, std::string_view name)
        : m_value(static_cast<Type>(isIdentifier(name) ? identifierAtPlace(command, name) : command.integer(name)))
    {}
    Type get() { return m_value; }

private:
    Type m_value;
};

template<>
class FromMacro<double>
{
public:
    FromMacro(const MacroCommand& command, std::string_view name)
        : m_value(command.real(name))
    {}
    double get() const { return m_value; }

private:
    double m_value;
};

template<>
class FromMacro<char>
{
public:
    FromMacro(const MacroCommand& command, std::string_view name)
        : m_value(command.text(name))
    {
        if (m_value.size() != 1) {
            throw DataError(command.name + ": \"" + std::string(name) + "\" has to be one character.");
        }
    }
    char get() const { return m_value.front(); }

private:
    std::string m_value;
};

template<>
class FromMacro<const char*>
{
public:
    FromMacro(const MacroCommand& command, std::string_view name)
        : m_value(command.text(name))
    {}
    const char* get() const { return m_value.c_str(); }

private:
    std::string m_value;
};

template<>
class FromMacro<VtxSetHandle>
{
public:
    FromMacro(const MacroCommand& command, std::string_view name)
    {
        const MacroValue* value = command.find(name);
        const auto* numbers = value ? std::get_if<std::set<long>>(value) : nullptr;
        if (!numbers) {
            throw DataError(command.name + ": \"" + std::string(name) + "\" has to be a set in braces, as in {1-3,7}.");
        }
        m_set.members = *numbers;
    }
    VtxSetHandle get() { return &m_set; }

private:
    VtxSet m_set;
};

/* In argument lists an axis is the number of its character, which a macro writes as that character. */
inline constexpr std::string_view axisArgument = "Axis";

/* The named values of an argument list, each an argument of the command. Pointers, which receive something, are left
 * out. */
void describeList(MacroCommand& command, const Command& about, const VtxArgList& list);

/* An argument list for the function that is the command. */
VtxArgList listFromMacro(const MacroCommand& command);

} // namespace vantrix::kernel
