/*
 * The pick list: the objects that were clicked in the work area, or picked by a function. It belongs to the active
 * frame's page, is no step of undo, and is emptied when one of its objects goes. Positions count from 1; a function
 * asked for an object that is not there, or for what the object's type does not have, answers 0 (`PickObject_None`).
 */
#ifndef VTX_UTIL_PICK_H
#define VTX_UTIL_PICK_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

long VtxUtilPickListGetCount(void);
PickObject_e VtxUtilPickListGetType(long position);

/* The frame that an object belongs to, or that it is. */
long VtxUtilPickListGetFrame(long position);

/* Of a zone, or of a surface that was derived from one, its number. */
long VtxUtilPickListGetZoneNumber(long position);
long VtxUtilPickListGetLineMapNumber(long position);

/* The number that a streamtrace has in its frame now. */
long VtxUtilPickListGetStreamtrace(long position);

/* The handle of a text or geometry. */
long VtxUtilPickListGetText(long position);
long VtxUtilPickListGetGeometry(long position);

/* Of an axis: its character and number (see VtxUtilAxis.h), and the part of it that was hit. */
char VtxUtilPickListGetAxisKind(long position);
int VtxUtilPickListGetAxisNumber(long position);
AxisSubObject_e VtxUtilPickListGetAxisSubObject(long position);

/* Empties the list. Sends `StateChange_PickListCleared` when it held something. */
bool VtxUtilPickClear(void);

/* Adds an object to the list; `StateChange_PickListItem` is sent. Refused for what does not exist. */
bool VtxUtilPickText(long text);
bool VtxUtilPickGeometry(long geometry);
bool VtxUtilPickFrame(long frameId);
bool VtxUtilPickZone(long zone);
bool VtxUtilPickLineMap(long lineMap);
bool VtxUtilPickStreamtrace(long streamtrace);
bool VtxUtilPickAxis(char axis, int axisNumber, AxisSubObject_e part);

/* The contour legend or that of the line maps. */
bool VtxUtilPickLegend(PickObject_e legend);

/*
 * Picks what is seen at a place of the paper (inches from its lower left corner): a text or geometry before an axis
 * title, an axis line, a legend, a streamtrace, a zone or line map, the grid area, a frame. `collect` keeps what was
 * picked before. False, with nothing picked, where there is nothing.
 */
bool VtxUtilPickAtPosition(double x, double y, bool collect);

/* Deletes the picked objects that can be deleted (texts, geometries, streamtraces, line maps, frames); one step. */
bool VtxUtilPickDelete(void);

VTX_END_DECLS

#endif
