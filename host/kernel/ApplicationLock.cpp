#include "kernel/ApplicationLock.h"

#include "kernel/UndoStack.h"
#include "kernel/macro/MacroRecorder.h"

namespace vantrix::kernel {

void ApplicationLock::start(bool record)
{
    if (m_depth++ == 0) {
        m_isRecorded = false;
        m_undo.beginStep();
    }
    m_isRecorded = m_isRecorded || record;
}

void ApplicationLock::finish()
{
    if (m_depth == 0) {
        ++m_violations;
        return;
    }
    if (--m_depth == 0) {
        m_undo.endStep();
        m_recorder.endStep();
    }
}

void ApplicationLock::expectLocked()
{
    if (m_depth == 0) {
        ++m_violations;
    }
}

} // namespace vantrix::kernel
