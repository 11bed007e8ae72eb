#include "kernel/UndoStack.h"

#include "kernel/StateChanges.h"

#include <algorithm>

namespace vantrix::kernel {

namespace {

/* Sets a flag for as long as it lives. */
class FlagScope
{
public:
    explicit FlagScope(bool& flag)
        : m_flag(flag)
    {
        m_flag = true;
    }
    ~FlagScope() { m_flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_flag;
};

} // namespace

void UndoStack::countMemory(Step& step, bool isDone)
{
    m_memory -= step.memory;
    step.memory = 0;
    for (const auto& change : step.changes) {
        step.memory += change->memory(isDone);
    }
    m_memory += step.memory;
}

/* Drops all but so many of the steps that are undone, or redone, first. */
void UndoStack::dropFarthest(std::deque<Step>& steps, std::size_t kept)
{
    while (steps.size() > kept) {
        m_memory -= steps.front().memory;
        steps.pop_front();
        ++m_revision;
    }
}

void UndoStack::beginStep()
{
    if (!m_current) {
        m_current = std::make_unique<Step>();
        m_mark = 0;
    }
}

void UndoStack::endStep()
{
    if (!m_current) {
        return;
    }
    const std::unique_ptr<Step> step = std::move(m_current);
    std::erase_if(step->changes, [](const auto& change) { return change->isTransient(); });
    if (step->changes.empty()) {
        return;
    }
    dropFarthest(m_redo, 0);
    const bool isOfDocument = std::ranges::any_of(step->changes, [](const auto& each) { return each->isOfDocument(); });
    step->state = isOfDocument ? ++m_lastState : state();
    countMemory(*step, true);
    m_undo.push_back(std::move(*step));
    ++m_revision;
    trim();
}

std::size_t UndoStack::mark()
{
    m_mark = m_current ? m_current->changes.size() : 0;
    return m_mark;
}

void UndoStack::rollBackStep(std::size_t mark)
{
    if (!m_current || m_replaying) {
        return;
    }
    m_mark = std::min(m_mark, mark);
    const FlagScope replaying(m_replaying);
    while (m_current->changes.size() > mark) {
        const std::unique_ptr<UndoableChange> change = std::move(m_current->changes.back());
        m_current->changes.pop_back();
        change->undo();
    }
    ++m_revision;
}

void UndoStack::nameStep(const std::string& name)
{
    if (m_current && m_current->name.empty()) {
        m_current->name = name;
    }
}

void UndoStack::record(std::unique_ptr<UndoableChange> change)
{
    if (m_replaying || (change->isTransient() && !m_current)) {
        return;
    }
    const bool isStepOfItsOwn = !m_current;
    beginStep();
    m_current->changes.push_back(std::move(change));
    if (isStepOfItsOwn) {
        endStep();
    }
}

UndoableChange* UndoStack::lastOfStep() const
{
    return m_current && m_current->changes.size() > m_mark && !m_replaying ? m_current->changes.back().get() : nullptr;
}

std::string UndoStack::undoName() const
{
    return m_undo.empty() ? std::string() : m_undo.back().name;
}

std::string UndoStack::redoName() const
{
    return m_redo.empty() ? std::string() : m_redo.back().name;
}

bool UndoStack::undo()
{
    return replay(m_undo, m_redo, true);
}

bool UndoStack::redo()
{
    return replay(m_redo, m_undo, false);
}

bool UndoStack::replay(std::deque<Step>& from, std::deque<Step>& to, bool isUndo)
{
    if (from.empty() || m_current || m_replaying) {
        return false;
    }
    {
        const FlagScope replaying(m_replaying);
        to.push_back(std::move(from.back()));
        from.pop_back();
        const auto& changes = to.back().changes;
        if (isUndo) {
            for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
                (*change)->undo();
            }
        } else {
            for (const auto& change : changes) {
                change->redo();
            }
        }
    }
    countMemory(to.back(), !isUndo);
    trim();
    ++m_revision;
    m_changes.send(StateChange_HistoryStep);
    return true;
}

void UndoStack::forEachDataSet(const std::function<void(const DataSet&)>& visit) const
{
    const auto visitStep = [&](const Step& step) {
        for (const auto& change : step.changes) {
            change->forEachDataSet(visit);
        }
    };
    std::for_each(m_undo.begin(), m_undo.end(), visitStep);
    std::for_each(m_redo.begin(), m_redo.end(), visitStep);
    if (m_current) {
        visitStep(*m_current);
    }
}

void UndoStack::clear()
{
    m_undo.clear();
    m_redo.clear();
    m_memory = 0;
    if (m_current) {
        m_current->changes.clear();
        m_mark = 0;
    }
    m_oldestState = ++m_lastState;
    ++m_revision;
}

void UndoStack::setMemoryBound(std::size_t bytes)
{
    m_memoryBound = bytes;
    trim();
}

void UndoStack::trim()
{
    if (m_memory <= m_memoryBound) {
        return;
    }
    // What a step keeps becomes less when variables leave the memory.
    std::ranges::for_each(m_undo, [this](Step& step) { countMemory(step, true); });
    std::ranges::for_each(m_redo, [this](Step& step) { countMemory(step, false); });
    std::size_t keptMemory = 0;
    const auto keepNext = [&](const std::deque<Step>& steps, std::size_t& kept) {
        const Step* next = kept < steps.size() ? &steps[steps.size() - 1 - kept] : nullptr;
        if (!next || keptMemory + next->memory > m_memoryBound) {
            return false;
        }
        keptMemory += next->memory;
        ++kept;
        return true;
    };
    std::size_t done = 0;
    std::size_t undone = 0;
    bool fitsDone = true;
    bool fitsUndone = true;
    while (fitsDone || fitsUndone) {
        fitsDone = fitsDone && keepNext(m_undo, done);
        fitsUndone = fitsUndone && keepNext(m_redo, undone);
    }
    if (done < m_undo.size()) {
        m_oldestState = m_undo[m_undo.size() - 1 - done].state;
    }
    dropFarthest(m_undo, done);
    dropFarthest(m_redo, undone);
}

} // namespace vantrix::kernel
