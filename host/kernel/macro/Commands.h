#pragma once

#include "kernel/macro/MacroCommand.h"

namespace vantrix::kernel {

inline constexpr long macroVersion = 1;

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
    std::vector<const char*> parameters;
    bool (*run)(const MacroCommand& command, const Command& about);

    /* The way undo goes: not under the lock, and alone on its line. */
    bool isStepOfItsOwn = false;

    /* Takes an argument list, whose names the function itself checks. */
    bool takesList = false;
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

/* Throws DataError, naming the argument and those that there are, for one that the command does not have. */
void checkArguments(const MacroCommand& command, const Command& about);

} // namespace vantrix::kernel
