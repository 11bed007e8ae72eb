#pragma once

#include "kernel/macro/MacroCommand.h"

namespace vantrix::kernel {

inline constexpr long macroVersion = 1;

/* An argument of a command. */
struct Parameter
{
    Parameter(const char* parameter)
        : name(parameter)
    {}
    Parameter(std::string_view parameter, const char* type)
        : name(parameter)
        , enumeration(type)
    {}

    std::string_view name;

    /* The type that its numbers are of ("PlotType_e"), which macros write by name; null for other arguments. */
    const char* enumeration = nullptr;
};

/*
 * The commands of macros: a name, what its arguments are called, and the function of the interface that does it. This
 * table, in Commands.cpp, is the one place that tells how a call becomes a command and a command a call; a function
 * that changes state and is not in it cannot be called through boundary::change().
 *
 * What has an identifier is named by its place; see Identifiers.h.
 */
struct Command
{
    const char* name;
    const void* function;
    std::vector<Parameter> parameters;                              /* of a function in its order */
    bool (*run)(const MacroCommand& command, const Command& about); /* the command being checked() */

    /* The way undo goes: not under the lock, and alone on its line. */
    bool isStepOfItsOwn = false;
};

/* All commands that there are. */
const std::vector<Command>& commands();

/* Null when there is no command of that name. */
const Command* commandNamed(std::string_view name);

/* The command that a function of the interface is; throws std::logic_error for one that is none. */
const Command& commandOf(const void* function);

/* Whether a command gives something a value and nothing else, so that of two to the same thing the last counts; and
 * whether two are to the same thing. */
bool isValue(const MacroCommand& command);
bool replaces(const MacroCommand& later, const MacroCommand& earlier);

/* The command with numbers in place of enumerators. Throws DataError, naming what there is, for an argument that it
 * does not have and a name that is no enumerator. */
MacroCommand checked(MacroCommand command, const Command& about);

} // namespace vantrix::kernel
