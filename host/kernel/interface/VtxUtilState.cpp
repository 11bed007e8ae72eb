#include "api/VtxUtilState.h"

#include "kernel/StateChanges.h"
#include "kernel/StyleVocabulary.h"
#include "kernel/UndoStack.h"
#include "kernel/interface/Boundary.h"

using namespace vantrix::kernel;

void VtxUtilLockStart(bool record)
{
    boundary::guarded([&] { Kernel::instance().lock().start(record); });
}

void VtxUtilLockFinish(void)
{
    boundary::guarded([] { Kernel::instance().lock().finish(); });
}

bool VtxUtilLockIsOn(void)
{
    return Kernel::instance().lock().isOn();
}

long VtxUtilLockGetViolationCount(void)
{
    return Kernel::instance().lock().violationCount();
}

bool VtxUtilLockRollBack(void)
{
    return boundary::guarded(false, [] {
        if (!Kernel::instance().lock().isOn()) {
            return boundary::fail("There is nothing to take back: the lock is not on.");
        }
        Kernel::instance().undoStack().rollBackStep();
        Kernel::instance().macroRecorder().dropStep();
        return true;
    });
}

void VtxUtilUndoSetStepName(const char* name)
{
    boundary::guarded([&] { Kernel::instance().undoStack().nameStep(name ? name : ""); });
}

bool VtxUtilUndo(void)
{
    return boundary::guarded(false, [] {
        if (!Kernel::instance().undoStack().undo()) {
            return boundary::fail("There is nothing to undo, or a step is under way.");
        }
        Kernel::instance().macroRecorder().recordStep({"Undo", {}});
        return true;
    });
}

bool VtxUtilRedo(void)
{
    return boundary::guarded(false, [] {
        if (!Kernel::instance().undoStack().redo()) {
            return boundary::fail("There is nothing to redo, or a step is under way.");
        }
        Kernel::instance().macroRecorder().recordStep({"Redo", {}});
        return true;
    });
}

char* VtxUtilUndoGetStepName(void)
{
    return boundary::guarded<char*>(nullptr, [] {
        const UndoStack& undo = Kernel::instance().undoStack();
        return undo.canUndo() ? boundary::copyString(undo.undoName()) : nullptr;
    });
}

char* VtxUtilRedoGetStepName(void)
{
    return boundary::guarded<char*>(nullptr, [] {
        const UndoStack& undo = Kernel::instance().undoStack();
        return undo.canRedo() ? boundary::copyString(undo.redoName()) : nullptr;
    });
}

void VtxUtilStateChangeAddListener(VtxStateChangeFunction function, void* clientData)
{
    boundary::guarded([&] { Kernel::instance().stateChanges().addListener(function, clientData); });
}

void VtxUtilStateChangeRemoveListener(VtxStateChangeFunction function, void* clientData)
{
    boundary::guarded([&] { Kernel::instance().stateChanges().removeListener(function, clientData); });
}

int VtxUtilStateChangeGetKind(VtxStateChangeHandle change)
{
    return change->kind;
}

const char* VtxUtilStateChangeGetStyleParam(VtxStateChangeHandle change, int index)
{
    if (change->styleEntry < 0) {
        return nullptr;
    }
    const StyleEntry& entry = styleDescription(change->styleEntry);
    return index >= 1 && index <= entry.pathLength
               ? styleNames()[static_cast<std::size_t>(entry.path[static_cast<std::size_t>(index - 1)])]
               : nullptr;
}

long VtxUtilStateChangeGetStyleEntry(VtxStateChangeHandle change)
{
    return change->styleEntry;
}

long VtxUtilStateChangeGetObject(VtxStateChangeHandle change)
{
    return change->object;
}
