/*
 * Line maps of the active frame: what an XY or polar line plot shows. Their look, variables, zone and axes are style
 * ("LineMap", with the line map's number as offset); these functions add, delete and count them.
 */
#ifndef VTX_UTIL_LINE_MAP_H
#define VTX_UTIL_LINE_MAP_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/* How many line maps the active frame has; 0 without a frame. Line maps are numbered from 1 to the count. */
long VtxUtilLineMapGetCount(void);

/* The name of a line map: its own, or that of its Y variable when it has none. False when there is no such number. */
bool VtxUtilLineMapGetName(long lineMap, char** name);

/* Line maps that are shown; a new set owned by the caller, or null without a frame. */
VtxSetHandle VtxUtilLineMapGetActive(void);

/* Variables (X, or theta, and Y, or R) and zone of a line map, and its axes. Any pointer may be null. */
bool VtxUtilLineMapGetAssignment(long lineMap, long* zone, long* xVariable, long* yVariable, int* xAxis, int* yAxis);

/* Adds a line map at the end, with the look that follows the last one's in the palette; it is shown. Refused when the
 * data set has no such zone or variable. Sends `StateChange_LineMapsAddedOrDeleted`. */
bool VtxUtilLineMapCreate(long zone, long xVariable, long yVariable);

/* Deletes line maps; those behind a deleted one move down with their style. Refused for a set that is empty or names
 * one that does not exist. Sends `StateChange_LineMapsAddedOrDeleted`. */
bool VtxUtilLineMapDelete(VtxSetHandle lineMaps);

VTX_END_DECLS

#endif
