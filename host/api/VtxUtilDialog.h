/* What the host shows on behalf of the dialogs. Each call returns when the user has seen it. */
#ifndef VTX_UTIL_DIALOG_H
#define VTX_UTIL_DIALOG_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/* Shows a text. Returns true, or for `MessageBox_Question` whether the user agreed. */
bool VtxUtilDialogMessageBox(const char* text, MessageBox_e type);

void VtxUtilDialogErrMsg(const char* text);

/* Shows a text in the status line, without waiting for the user. */
void VtxUtilStatusMessage(const char* text);

/* Opens a help page ("create_zone_circular.html") of the host's help. False when there is no such page. */
bool VtxUtilHelpLaunch(const char* page);

/* Shows and hides the busy indicator; calls nest. */
void VtxUtilWaitBegin(void);
void VtxUtilWaitEnd(void);

VTX_END_DECLS

#endif
