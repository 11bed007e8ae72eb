#pragma once

#include "kernel/macro/MacroCommand.h"

#include <string>
#include <vector>

namespace vantrix::kernel {

class Kernel;

/* Runs macros. */
class MacroPlayer
{
public:
    explicit MacroPlayer(Kernel& kernel)
        : m_kernel(kernel)
    {}

    /*
     * Each line is one step of undo. The whole file is read first: nothing is done when a line cannot be understood.
     * Throws DataError with file, line and cause when one cannot be done, which then has done nothing, while the steps
     * before it stay; ActionCancelled when the user stopped it between two lines. Not to be called under the lock, nor
     * by a macro.
     */
    void run(const std::string& file);

    /* The same with the lines of a text, which errors call by `name`. */
    void runText(const std::string& text, const std::string& name);

private:
    struct Line
    {
        long number;
        std::vector<MacroCommand> commands;
    };
    static std::vector<Line> read(std::istream& stream, const std::string& name);
    void play(const std::vector<Line>& lines, const std::string& name);
    void play(const Line& line);
    void runAll(const std::vector<MacroCommand>& commands);
    bool runCommand(const MacroCommand& command);

    Kernel& m_kernel;
};

} // namespace vantrix::kernel
