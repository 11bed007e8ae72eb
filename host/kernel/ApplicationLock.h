#pragma once

namespace vantrix::kernel {

class MacroRecorder;
class UndoStack;

/*
 * The application lock: nests, and the outermost one brackets one step of undo and one line of a macro. It guards no
 * threads (everything runs on the thread of the user interface); it marks where an action begins and ends.
 */
class ApplicationLock
{
public:
    ApplicationLock(UndoStack& undo, MacroRecorder& recorder)
        : m_undo(undo)
        , m_recorder(recorder)
    {}

    /* What is changed from the first lock of a step that asks to `record` on is one command of a recorded macro: a
     * widget may take a lock for what it does without knowing whether that changes state. */
    void start(bool record);

    /* Without a lock to finish it changes nothing and counts as a violation. */
    void finish();
    bool isOn() const { return m_depth > 0; }
    bool isRecorded() const { return m_depth > 0 && m_isRecorded; }

    /* Called by whatever changes state; counts the calls made without the lock. */
    void expectLocked();
    long violationCount() const { return m_violations; }

private:
    UndoStack& m_undo;
    MacroRecorder& m_recorder;
    long m_depth = 0;
    long m_violations = 0;
    bool m_isRecorded = false;
};

/* Holds the lock for as long as it lives. */
class ActionLock
{
public:
    explicit ActionLock(ApplicationLock& lock, bool record = true)
        : m_lock(lock)
    {
        m_lock.start(record);
    }
    ~ActionLock() { m_lock.finish(); }
    ActionLock(const ActionLock&) = delete;
    ActionLock& operator=(const ActionLock&) = delete;

private:
    ApplicationLock& m_lock;
};

} // namespace vantrix::kernel
