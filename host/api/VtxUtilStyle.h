/*
 * Style values: one number, flag or string under a path of one to seven names ("FrameLayout", "BorderThickness"), and,
 * where the path addresses one of several objects, one or two offsets (an axis number, a constraint number, a zone).
 * docs/style-reference.md lists every path with its type, range, default, scope and the meaning of its offsets.
 */
#ifndef VTX_UTIL_STYLE_H
#define VTX_UTIL_STYLE_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/* The most names that a style path has. */
#define VTX_STYLE_PATH_MAX 7

/* The host's number of one name of the style vocabulary ("ShowGrid"), or -1 for a name that no path has. The numbers
 * hold for the life of the process. */
long VtxUtilStyleGetMacroID(const char* name);

/* The host's number of one style value by the macro identifiers of its path, or -1 when no style value has that path
 * (the error text names the longest part that is known). The number holds for the life of the process. */
long VtxUtilStyleFindEntry(const long* macroIDs, int count);

/*
 * A number that changes whenever a value of the entry may have changed, for any offsets, and whenever another page or
 * frame becomes active. Two equal numbers tell that a value read between them is still right. Costs next to nothing.
 * 0 for an unknown entry.
 */
unsigned long VtxUtilStyleGetChangeStamp(long entry);

/*
 * Reads one style value. Arguments:
 *   "Entry"     long    number from VtxUtilStyleFindEntry()
 *   "Offset1"   long    first offset; -1 or left out where the entry has none
 *   "Offset2"   long    second offset; the same
 *   one of
 *   "IValue"    long*   of a flag (0, 1), an integer or an enumeration
 *   "DValue"    double* of a double
 *   "StrValue"  char**  of a string, allocated by the host
 */
GetValueReturnCode_e VtxUtilStyleGetLowLevelX(VtxArgListHandle arguments);

/*
 * Writes one style value; needs the application lock. Arguments as for reading, with the values themselves:
 *   "Entry", "Offset1", "Offset2", and
 *   "IValue"    long    of a flag, an integer or an enumeration; "DValue" may stand beside it and is then ignored
 *   "DValue"    double  of a double
 *   "StrValue"  string  of a string
 *   "AssignOp"  long    an AssignOp_e; may be left out
 *   "ObjectSet" set     objects to write to in place of the first offset; may be left out
 *
 * A value equal to the present one changes nothing and notifies nobody. On any code but `SetValueReturnCode_Ok` and
 * `SetValueReturnCode_Adjusted` nothing has changed, and VtxUtilStyleGetLastErrorString() tells path, value, and what
 * would be right.
 */
SetValueReturnCode_e VtxUtilStyleSetLowLevelX(VtxArgListHandle arguments);

/* The text of the last style access that failed, or null when none has failed yet. */
char* VtxUtilStyleGetLastErrorString(void);

VTX_END_DECLS

#endif
