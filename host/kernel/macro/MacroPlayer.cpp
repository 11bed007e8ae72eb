#include "kernel/macro/MacroPlayer.h"

#include "kernel/ApplicationLock.h"
#include "kernel/DataError.h"
#include "kernel/Kernel.h"
#include "kernel/Progress.h"
#include "kernel/UndoStack.h"
#include "kernel/macro/Commands.h"
#include "kernel/macro/MacroRecorder.h"

#include <fstream>
#include <sstream>
#include <utility>

namespace vantrix::kernel {

namespace {

const char* const taskName = "Playing macro";

/* The commands of a line, checked(). */
std::vector<MacroCommand> checkedLine(std::vector<MacroCommand> commands, long number)
{
    for (MacroCommand& command : commands) {
        if (command.name == "Macro") {
            if (number != 1 || commands.size() != 1) {
                throw DataError("\"Macro\" with the version stands alone on the first line.");
            }
            if (command.integer("Version") > macroVersion) {
                throw DataError("the macro has version " + std::to_string(command.integer("Version")) +
                                "; this program knows versions up to " + std::to_string(macroVersion) + '.');
            }
            continue;
        }
        const Command* about = commandNamed(command.name);
        if (!about) {
            throw DataError("there is no command \"" + command.name + "\".");
        }
        if (about->isStepOfItsOwn && commands.size() > 1) {
            throw DataError("\"" + command.name + "\" has to stand alone on its line.");
        }
        command = checked(std::move(command), *about);
    }
    return commands;
}

DataError located(const std::string& name, long line, const std::string& cause)
{
    return DataError("Macro \"" + name + "\", line " + std::to_string(line) + ": " + cause);
}

} // namespace

std::vector<MacroPlayer::Line> MacroPlayer::read(std::istream& stream, const std::string& name)
{
    std::vector<Line> lines;
    std::string text;
    for (long number = 1; std::getline(stream, text); ++number) {
        try {
            Line line{number, checkedLine(parseMacroLine(number == 1 ? withoutByteOrderMark(text) : text), number)};
            if (!line.commands.empty() && line.commands.front().name != "Macro") {
                lines.push_back(std::move(line));
            }
        } catch (const std::exception& failure) {
            throw located(name, number, failure.what());
        }
    }
    if (stream.bad()) {
        throw DataError("Cannot read the macro \"" + name + "\" to its end.");
    }
    return lines;
}

void MacroPlayer::run(const std::string& file)
{
    std::ifstream stream(file);
    if (!stream) {
        throw DataError("Cannot read the macro \"" + file + "\"; is there such a file, and may you read it?");
    }
    play(read(stream, file), file);
}

void MacroPlayer::runText(const std::string& text, const std::string& name)
{
    std::istringstream stream(text);
    play(read(stream, name), name);
}

void MacroPlayer::play(const std::vector<Line>& lines, const std::string& name)
{
    if (m_kernel.lock().isOn()) {
        throw DataError("A macro cannot be played in the middle of another action.");
    }
    const Progress progress(m_kernel.frontEnd(), taskName);
    const ReportProgress report = progress.report();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!report(static_cast<double>(i) / static_cast<double>(lines.size()))) {
            throw ActionCancelled("The macro was stopped before line " + std::to_string(lines[i].number) + '.');
        }
        try {
            play(lines[i]);
        } catch (const ActionCancelled&) {
            throw;
        } catch (const std::exception& failure) {
            throw located(name, lines[i].number, failure.what());
        }
    }
}

void MacroPlayer::play(const Line& line)
{
    if (commandNamed(line.commands.front().name)->isStepOfItsOwn) {
        runAll(line.commands);
        return;
    }
    const ActionLock lock(m_kernel.lock());
    try {
        runAll(line.commands);
        m_kernel.undoStack().nameStep("Macro");
    } catch (...) {
        m_kernel.undoStack().rollBackStep();
        m_kernel.macroRecorder().dropStep();
        throw;
    }
}

void MacroPlayer::runAll(const std::vector<MacroCommand>& commands)
{
    // A value may be right only when another one of the line is set, as the ends of a range are that moves far.
    std::vector<const MacroCommand*> refused;
    std::string error;
    for (const MacroCommand& command : commands) {
        if (runCommand(command)) {
            continue;
        }
        error = refused.empty() ? m_kernel.lastError() : error;
        if (!isValue(command)) {
            throw DataError(error);
        }
        refused.push_back(&command);
    }
    while (!refused.empty()) {
        if (std::erase_if(refused, [this](const MacroCommand* command) { return runCommand(*command); }) == 0) {
            throw DataError(error);
        }
    }
}

bool MacroPlayer::runCommand(const MacroCommand& command)
{
    const Command& about = *commandNamed(command.name);
    try {
        return about.run(command, about);
    } catch (const ActionCancelled&) {
        throw;
    } catch (const DataError& error) {
        m_kernel.setLastError(error.what());
        return false;
    }
}

} // namespace vantrix::kernel
