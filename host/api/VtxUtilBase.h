/* What every part of the function interface needs: linkage, handles, strings. */
#ifndef VTX_UTIL_BASE_H
#define VTX_UTIL_BASE_H

#include "api/VtxEnumerations.h"

#include <stdbool.h>

#ifdef __cplusplus
#define VTX_BEGIN_DECLS extern "C" {
#define VTX_END_DECLS }
#else
#define VTX_BEGIN_DECLS
#define VTX_END_DECLS
#endif

/* A list of named arguments; see VtxUtilArgList.h. */
typedef struct VtxArgList* VtxArgListHandle;

/* A set of numbers from 1 (zones, variables); see VtxUtilArgList.h. */
typedef struct VtxSet* VtxSetHandle;

/* One notification of a state change; valid only during the call that hands it over. */
typedef struct VtxStateChange const* VtxStateChangeHandle;

VTX_BEGIN_DECLS

/* Releases a string that the host handed out and sets the caller's pointer to null. Null, or a pointer to null, is
 * allowed and does nothing. */
void VtxUtilStringDealloc(char** string);

/* The text of the last failure of any function of this interface, or null when none has failed yet. A call that
 * succeeds leaves the text. */
char* VtxUtilGetLastErrorString(void);

/* Whether that failure was the user's wish: long work that was stopped, of which nobody has to be told as of an error.
 */
bool VtxUtilLastErrorIsCancellation(void);

VTX_END_DECLS

#endif
