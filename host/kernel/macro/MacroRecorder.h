#pragma once

#include "kernel/macro/MacroCommand.h"

#include <fstream>
#include <string>
#include <vector>

namespace vantrix::kernel {

class StateChanges;

/*
 * Writes what is done as commands of a macro file: one line for each outermost lock under which something was done that
 * is to be recorded. What a function of the interface does itself by calling others is part of that function's command.
 */
class MacroRecorder
{
public:
    explicit MacroRecorder(StateChanges& changes)
        : m_changes(changes)
    {}

    bool isRecording() const { return m_file.is_open(); }

    /* Begins a file, in place of one that is there. Throws DataError when it cannot be written, or another is being
     * recorded. Both send `StateChange_MacroRecording`. */
    void start(const std::string& file);

    /* Throws DataError when nothing is being recorded, or the file is not complete because the disk is full. */
    void stop();

    /* The step under way: what was recorded since it began is written, or forgotten because it was taken back. */
    void endStep();
    void dropStep() { m_step.clear(); }

    /* A step of its own: what is never done under the lock. */
    void recordStep(const MacroCommand& command);

    /*
     * One call of a function of the interface that changes state; the outermost of nested calls counts. The command is
     * described by the caller before the work, as its arguments may mean something else after it, and is recorded when
     * the work succeeded.
     */
    class Call
    {
    public:
        Call(MacroRecorder& recorder, bool isWanted)
            : m_recorder(recorder)
            , m_isDescribed(isWanted && recorder.isRecording() && recorder.m_depth == 0)
        {
            ++m_recorder.m_depth;
        }
        ~Call() { --m_recorder.m_depth; }
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

        /* Whether the call would be recorded, and has to be described. */
        bool isDescribed() const { return m_isDescribed; }
        void succeeded(MacroCommand command);

    private:
        MacroRecorder& m_recorder;
        bool m_isDescribed;
    };

private:
    void add(MacroCommand command);
    void write(const std::string& line);

    StateChanges& m_changes;
    std::ofstream m_file;
    std::string m_fileName;
    std::vector<MacroCommand> m_step;
    int m_depth = 0;
};

} // namespace vantrix::kernel
