#include "kernel/macro/MacroRecorder.h"

#include "kernel/DataError.h"
#include "kernel/StateChanges.h"
#include "kernel/macro/Commands.h"

#include <algorithm>
#include <utility>

namespace vantrix::kernel {

void MacroRecorder::start(const std::string& file)
{
    if (isRecording()) {
        throw DataError("The macro \"" + m_fileName + "\" is being recorded; stop that first.");
    }
    m_file.open(file, std::ios::out | std::ios::trunc);
    if (!m_file) {
        m_file.close();
        m_file.clear();
        throw DataError("Cannot write the macro \"" + file + "\"; is there such a folder, and may you write to it?");
    }
    m_fileName = file;
    m_step.clear();
    write(macroText(MacroCommand{"Macro", {{"Version", macroVersion}}}));
    m_changes.send(StateChange_MacroRecording);
}

void MacroRecorder::stop()
{
    if (!isRecording()) {
        throw DataError("No macro is being recorded.");
    }
    const bool isWhole = m_file.good();
    m_file.close();
    m_file.clear();
    m_step.clear();
    m_changes.send(StateChange_MacroRecording);
    if (!isWhole) {
        throw DataError("The macro \"" + m_fileName + "\" is not complete; is the disk full?");
    }
}

void MacroRecorder::write(const std::string& line)
{
    m_file << line << '\n' << std::flush; // what was recorded is there after a crash
}

void MacroRecorder::endStep()
{
    const std::vector<MacroCommand> step = std::exchange(m_step, {});
    if (isRecording() && !step.empty()) {
        write(macroText(step));
    }
}

void MacroRecorder::recordStep(const MacroCommand& command)
{
    if (isRecording() && m_depth == 0) {
        write(macroText(command));
    }
}

void MacroRecorder::add(MacroCommand command)
{
    // While something is dragged only the last of many values counts.
    const auto known = std::ranges::find_if(m_step, [&](const MacroCommand& each) { return replaces(command, each); });
    const bool isReplaceable = known != m_step.end() &&
                               std::all_of(known, m_step.end(), [](const MacroCommand& each) { return isValue(each); });
    if (isReplaceable) {
        m_step.erase(known);
    }
    m_step.push_back(std::move(command));
}

void MacroRecorder::Call::succeeded(MacroCommand command)
{
    m_recorder.add(std::move(command));
}

} // namespace vantrix::kernel
