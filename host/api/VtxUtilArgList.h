/* Argument lists and number sets. */
#ifndef VTX_UTIL_ARG_LIST_H
#define VTX_UTIL_ARG_LIST_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/*
 * An argument list holds named values for the functions whose names end in X. Names are unique in a list: appending a
 * name again replaces its value. Names and strings are copied. Pointers (`...Ptr`) are kept as given and written to by
 * the function that is called with the list.
 */
VtxArgListHandle VtxUtilArgListAlloc(void);

/* Releases the list and sets the caller's handle to null; null is allowed. */
void VtxUtilArgListDealloc(VtxArgListHandle* list);

void VtxUtilArgListClear(VtxArgListHandle list);
void VtxUtilArgListAppendArbParam(VtxArgListHandle list, const char* name, long value);
void VtxUtilArgListAppendArbParamPtr(VtxArgListHandle list, const char* name, long* value);
void VtxUtilArgListAppendDouble(VtxArgListHandle list, const char* name, double value);
void VtxUtilArgListAppendDoublePtr(VtxArgListHandle list, const char* name, double* value);
void VtxUtilArgListAppendString(VtxArgListHandle list, const char* name, const char* value);

/* The function called with the list allocates the string; the caller releases it with VtxUtilStringDealloc(). */
void VtxUtilArgListAppendStringPtr(VtxArgListHandle list, const char* name, char** value);

/* The set is copied. */
void VtxUtilArgListAppendSet(VtxArgListHandle list, const char* name, VtxSetHandle value);

/* A set of numbers from 1. Null where memory is not to be had. */
VtxSetHandle VtxUtilSetAlloc(void);

/* Releases the set and sets the caller's handle to null; null is allowed. */
void VtxUtilSetDealloc(VtxSetHandle* set);

/* Adds a member; false for a number below 1. Adding a member again changes nothing. */
bool VtxUtilSetAddMember(VtxSetHandle set, long member);
void VtxUtilSetRemoveMember(VtxSetHandle set, long member);
bool VtxUtilSetIsMember(VtxSetHandle set, long member);
long VtxUtilSetGetMemberCount(VtxSetHandle set);

/* The smallest member above `after`, or 0 when there is none. Start with 0. */
long VtxUtilSetGetNextMember(VtxSetHandle set, long after);

VTX_END_DECLS

#endif
