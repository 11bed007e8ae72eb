#pragma once

namespace vantrix::kernel {

class UndoStack;

/*
 * The application lock: nests, and the outermost one brackets one step of undo. It guards no threads (everything runs
 * on the thread of the user interface); it marks where an action begins and ends.
 */
class ApplicationLock
{
public:
    explicit ApplicationLock(UndoStack& undo)
        : m_undo(undo)
    {}

    void start(bool record);
    void finish();
    bool isOn() const { return m_depth > 0; }

    /* Called by whatever changes state; counts the calls made without the lock. */
    void expectLocked();
    long violationCount() const { return m_violations; }

private:
    UndoStack& m_undo;
    long m_depth = 0;
    long m_violations = 0;
};

} // namespace vantrix::kernel
