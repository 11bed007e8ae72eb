#pragma once

#include "kernel/DataError.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/macro/MacroCommand.h"

#include <type_traits>

/* How arguments of the interface's functions are written in a macro and read from it, by their types. */
namespace vantrix::kernel {

/* An identifier of a frame, which is written as the frame's position on the active page. */
inline constexpr std::string_view frameArgument = "Frame";
long framePosition(long frameId);
long frameAtPosition(long position);

template<class Type>
MacroValue toMacro(std::string_view name, Type value)
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
        return name == frameArgument ? framePosition(number) : number;
    }
}

/* Holds an argument read from a macro for as long as the call lasts. */
template<class Type>
class FromMacro
{
public:
    FromMacro(const MacroCommand& command, std::string_view name)
        : m_value(
              static_cast<Type>(name == frameArgument ? frameAtPosition(command.integer(name)) : command.integer(name)))
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

/* The named values of an argument list, each an argument of the command. Pointers, which receive something, are left
 * out. */
inline void describeList(MacroCommand& command, const VtxArgList& list)
{
    for (const VtxArgList::Argument& argument : list.arguments) {
        if (const long* number = std::get_if<long>(&argument.value)) {
            command.add(argument.name, *number);
        } else if (const double* real = std::get_if<double>(&argument.value)) {
            command.add(argument.name, *real);
        } else if (const auto* text = std::get_if<std::string>(&argument.value)) {
            command.add(argument.name, *text);
        } else if (const auto* set = std::get_if<VtxSet>(&argument.value)) {
            command.add(argument.name, set->members);
        }
    }
}

} // namespace vantrix::kernel
