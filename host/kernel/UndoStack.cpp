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

void UndoStack::countMemory(Step& step)
{
    m_memory -= step.memory;
    step.memory = 0;
    for (const auto& change : step.changes) {
        step.memory += change->memory();
    }
    m_memory += step.memory;
}

void UndoStack::forgetRedo()
{
    for (const Step& step : m_redo) {
        m_memory -= step.memory;
    }
    m_redo.clear();
}

void UndoStack::beginStep()
{
    if (!m_current) {
        m_current = std::make_unique<Step>();
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
    forgetRedo();
    step->state = ++m_lastState;
    countMemory(*step);
    m_undo.push_back(std::move(*step));
    ++m_revision;
    trim();
}

void UndoStack::rollBackStep()
{
    if (!m_current || m_replaying) {
        return;
    }
    const FlagScope replaying(m_replaying);
    while (!m_current->changes.empty()) {
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
    return m_current && !m_current->changes.empty() && !m_replaying ? m_current->changes.back().get() : nullptr;
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
    std::ranges::for_each(m_undo, [this](Step& step) { countMemory(step); });
    std::ranges::for_each(m_redo, [this](Step& step) { countMemory(step); });
    while (m_memory > m_memoryBound && !m_undo.empty()) {
        m_memory -= m_undo.front().memory;
        m_oldestState = m_undo.front().state;
        m_undo.pop_front();
        ++m_revision;
    }
}

} // namespace vantrix::kernel
