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

private:
    struct Line
    {
        long number;
        std::vector<MacroCommand> commands;
    };
    std::vector<Line> read(const std::string& file) const;
    void play(const Line& line);
    bool runCommand(const MacroCommand& command);

    Kernel& m_kernel;
};

} // namespace vantrix::kernel
