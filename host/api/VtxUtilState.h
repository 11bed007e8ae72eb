/* The application lock, notification of state changes, undo. */
#ifndef VTX_UTIL_STATE_H
#define VTX_UTIL_STATE_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/*
 * The application lock. Every call that changes state is made under it. Locks nest; what is changed under the outermost
 * one is one step of undo and, from the first of the locks whose `record` is true on, one command of a recorded macro.
 */
void VtxUtilLockStart(bool record);
void VtxUtilLockFinish(void);
bool VtxUtilLockIsOn(void);

/* How many calls that change state were made without the lock since the process began. A correct program has none. */
long VtxUtilLockGetViolationCount(void);

/* Takes back everything that was changed under the outermost lock so far and sends the state changes that tell of it,
 * so that an action that fails half-way leaves nothing half done. The lock stays on. False when it is not on. */
bool VtxUtilLockRollBack(void);

/* Names the step under way for the menu ("Create Circular Zone"). The first name given under an outermost lock stays.
 */
void VtxUtilUndoSetStepName(const char* name);

/* Takes back, or brings again, the last step. False when there is none. Not to be called under the lock. */
bool VtxUtilUndo(void);
bool VtxUtilRedo(void);

/* The name of the step that undo or redo would take; null when there is none. */
char* VtxUtilUndoGetStepName(void);
char* VtxUtilRedoGetStepName(void);

/*
 * Notification. The function is called for every state change, in the order of registration, with `clientData`. It may
 * read state and register or remove functions; a function that is removed is not called any more, one that is added is
 * first called for the next change. Changes made from within are sent after the present one has reached everybody.
 * A function and client data registered already are not registered twice.
 */
typedef void (*VtxStateChangeFunction)(VtxStateChangeHandle change, void* clientData);

void VtxUtilStateChangeAddListener(VtxStateChangeFunction function, void* clientData);
void VtxUtilStateChangeRemoveListener(VtxStateChangeFunction function, void* clientData);

/* The StateChange_e of a change. */
int VtxUtilStateChangeGetKind(VtxStateChangeHandle change);

/*
 * Name number `index` (from 1) of the style path of a `StateChange_Style`, or null when the path has fewer names or the
 * change is of another kind. The string belongs to the host and is valid for the life of the process.
 */
const char* VtxUtilStateChangeGetStyleParam(VtxStateChangeHandle change, int index);

/* The entry of a `StateChange_Style` (see VtxUtilStyleFindEntry()), -1 for another kind. */
long VtxUtilStateChangeGetStyleEntry(VtxStateChangeHandle change);

/* The number of the object that the change is about (a text handle, a zone), 0 where it is about none in particular. */
long VtxUtilStateChangeGetObject(VtxStateChangeHandle change);

VTX_END_DECLS

#endif
