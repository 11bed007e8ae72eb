#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vantrix::kernel {

class DataSet;

/* One reversible change. It is recorded after it was made. */
class UndoableChange
{
public:
    virtual ~UndoableChange() = default;

    /* Puts back, or makes again, and sends the state changes that tell of it. */
    virtual void undo() = 0;
    virtual void redo() = 0;

    /* Bytes that only this change keeps in memory: while it is done, of what was before it; while it is undone, of what
     * it made. */
    virtual std::size_t memory(bool isDone) const = 0;

    /* Calls `visit` for each data set that the change keeps. */
    virtual void forEachDataSet(const std::function<void(const DataSet&)>& /*visit*/) const {}

    /* Whether the change is taken back with a step that fails, but is no part of a step that is done: what is active or
     * picked. */
    virtual bool isTransient() const { return false; }

    /* Whether it changes what layouts hold, and not a setting of the program alone. */
    virtual bool isOfDocument() const { return true; }
};

class StateChanges;

/*
 * Steps that can be undone and redone. Changes recorded between beginStep() and endStep() are one step; a step without
 * changes leaves no trace. When all together keep more than the memory bound, those nearest to the present that fit in
 * it stay.
 */
class UndoStack
{
public:
    explicit UndoStack(StateChanges& changes)
        : m_changes(changes)
    {}

    void beginStep();
    void endStep();

    /* A place in the step under way to roll back to; what is recorded from now on is merged with nothing before. */
    std::size_t mark();

    /* Undoes the changes recorded in the step under way since the mark, without one all of them, last one first; the
     * step goes on. */
    void rollBackStep(std::size_t mark = 0);

    bool isInStep() const { return m_current != nullptr; }

    /* Whether what is told at present is a step being taken back, which ends in a state that was there before. */
    bool isRollingBack() const { return m_current && m_replaying; }

    /* Names the step under way; the first name given stays. */
    void nameStep(const std::string& name);

    /* Adds a change to the step under way, or, unless it is transient, makes a step of it alone, and forgets what could
     * be redone. */
    void record(std::unique_ptr<UndoableChange> change);

    /* The change recorded last in the step under way, into which the same kind of change may be merged; or null. */
    UndoableChange* lastOfStep() const;

    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }
    std::string undoName() const;
    std::string redoName() const;

    /*
     * False when there is no such step or one is under way. Sends what the changes of the step send, then
     * `StateChange_HistoryStep`.
     */
    bool undo();
    bool redo();

    /* Calls `visit` for each data set that a step keeps; one may come several times. */
    void forEachDataSet(const std::function<void(const DataSet&)>& visit) const;

    void clear();

    /* A number of what layouts hold at present: the same again after undo and redo back to it, another one for every
     * other state. */
    unsigned long state() const { return m_undo.empty() ? m_oldestState : m_undo.back().state; }
    void setMemoryBound(std::size_t bytes);

    /* A number that differs after every change of the history; tells a menu or a title when to look again. */
    unsigned long revision() const { return m_revision; }

private:
    struct Step
    {
        std::string name;
        unsigned long state = 0; /* after it */
        std::vector<std::unique_ptr<UndoableChange>> changes;
        std::size_t memory = 0; /* what its changes kept when it was counted last */
    };

    void countMemory(Step& step, bool isDone);
    void dropFarthest(std::deque<Step>& steps, std::size_t kept);
    void trim();
    bool replay(std::deque<Step>& from, std::deque<Step>& to, bool isUndo);

    StateChanges& m_changes;

    std::deque<Step> m_undo;
    std::deque<Step> m_redo;
    std::unique_ptr<Step> m_current;
    std::size_t m_memory = 0; /* of all steps that are done or can be redone */
    std::size_t m_memoryBound = std::size_t{2} << 30;
    unsigned long m_revision = 0;
    unsigned long m_lastState = 1;
    unsigned long m_oldestState = 1; /* before the oldest step */
    std::size_t m_mark = 0;          /* of the step under way; see mark() */
    bool m_replaying = false;        /* changes made by an undo are not recorded again */
};

} // namespace vantrix::kernel
