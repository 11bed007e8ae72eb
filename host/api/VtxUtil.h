/*
 * The function interface of the host: all that the dialogs library knows of the application it runs in.
 *
 * Rules that hold for every function:
 *  - C linkage, plain C types and opaque handles. Object numbers (zones, variables, frames by position, axes) count
 *    from 1. Strings are UTF-8.
 *  - A string that is handed out belongs to the caller, who releases it with VtxUtilStringDealloc().
 *  - A function that can fail returns false, leaves the state as it was, and VtxUtilGetLastErrorString() tells why.
 *  - A function that changes state is called between VtxUtilLockStart() and VtxUtilLockFinish().
 *  - Everything is called on the thread of the user interface.
 */
#ifndef VTX_UTIL_H
#define VTX_UTIL_H

#include "api/VtxUtilArgList.h"
#include "api/VtxUtilAxis.h"
#include "api/VtxUtilData.h"
#include "api/VtxUtilDialog.h"
#include "api/VtxUtilDocument.h"
#include "api/VtxUtilFrame.h"
#include "api/VtxUtilGeometry.h"
#include "api/VtxUtilLineMap.h"
#include "api/VtxUtilPick.h"
#include "api/VtxUtilProbe.h"
#include "api/VtxUtilState.h"
#include "api/VtxUtilStreamtrace.h"
#include "api/VtxUtilStyle.h"
#include "api/VtxUtilText.h"

#endif
