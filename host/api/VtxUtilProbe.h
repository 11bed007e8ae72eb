/*
 * Probing: the values of a plot at a place or an index.
 *
 * The host keeps the result of the last probe that found something: one that finds nothing leaves it as it is. A
 * probe-information handle says what was probed, so that it can be done again after data or style changed. A result is
 * about the frame that was active when it was made.
 */
#ifndef VTX_UTIL_PROBE_H
#define VTX_UTIL_PROBE_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

typedef struct VtxProbeInfo* VtxProbeInfoHandle;
typedef struct VtxFieldData* VtxFieldDataHandle;

/* Told of a finished probe: whether it found anything, whether it was for the nearest point, and the client data given
 * when the function was installed. */
typedef void (*VtxProbeFunction)(char wasSuccessful, char isNearestPoint, long clientData);

/*
 * Makes a function the receiver of probes and turns on the mouse mode for it:
 *   "CallbackFunction"  long    a VtxProbeFunction, cast to a number; 0 for none, which leaves the mouse mode alone
 *   "StatusLineText"    string  shown while the mouse is in probe mode (optional)
 *   "ClientData"        long    handed to the function (optional, 0)
 * The function stays installed until another is. False, with nothing changed, when the plot cannot be probed.
 */
bool VtxUtilProbeInstallCallbackX(VtxArgListHandle arguments);

/* Whether a function receives probes. */
bool VtxUtilProbeIsCallbackInstalled(void);

/* The last probe that found something, for VtxUtilProbePerform(); null when none did. Released by
 * VtxUtilProbeInfoDealloc(), which sets the handle to null. */
VtxProbeInfoHandle VtxUtilProbeInfoGet(void);
void VtxUtilProbeInfoDealloc(VtxProbeInfoHandle* info);

/* Probes again what `info` says, and calls `function` (may be null) with the client data of the installed one. False
 * when it finds nothing. */
bool VtxUtilProbePerform(VtxProbeInfoHandle info, VtxProbeFunction function);

/* Lets the probe of a handle be the last one again, with what it had found when the handle was taken; null for none.
 * Nothing is probed and no function is told. */
void VtxUtilProbeInfoRestore(VtxProbeInfoHandle info);

/* The plot type that the last probe was made in; `PlotType_Sketch` when there was none. */
PlotType_e VtxUtilProbeGetPlotType(void);

/*
 * Probes of field plots. A position probe interpolates; it looks in the active zones, on the surfaces that the plot
 * shows or, with "SearchVolume", inside volume zones:
 *
 *   "X" "Y" "Z"                    double  ("Z" in 3D plots)
 *   "SearchVolume"                 long    (optional, false)
 *   "NearestPoint"                 long    the nearest point instead of interpolating (optional, false)
 *   "PROBEATFIELDPOSITIONRESULT"   long*   receives 1 when the position is inside the data, else 0 (optional)
 * An index probe takes a point: "I", "J", "K", "Zone" (long). Of a finite-element zone I is the point, J and K are 1.
 * The installed function is told of the result. False, with a text, for a zone, index or plot that cannot be probed; a
 * position outside the data is false as well.
 */
bool VtxUtilProbeAtFieldPositionX(VtxArgListHandle arguments);
bool VtxUtilProbeAtFieldIndexX(VtxArgListHandle arguments);

/*
 * Probes of line plots. By position along an axis ("Position" double, "Axis" long: 'X', 'Y', 'T' or 'R', "AxisNum"
 * long) every active line map over that axis is interpolated, theta being the same a full circle on;
 * "PROBEATLINEPOSITIONRESULT" (long*, optional) receives 1 when one has a value there, else 0. By index ("I", "J", "K",
 * "LineMap" long) one point of one line map is taken.
 */
bool VtxUtilProbeAtLinePositionX(VtxArgListHandle arguments);
bool VtxUtilProbeAtLineIndexX(VtxArgListHandle arguments);

/* The result of the last field probe. */
ProbeSource_e VtxUtilProbeFieldGetCZType(void);
long VtxUtilProbeFieldGetZone(void);
bool VtxUtilProbeFieldGetName(char** name);

/* The cell (from 1); of an ordered zone the number of its first corner among the zone's points. 0 for a probe by index.
 */
long VtxUtilProbeFieldGetCell(void);

/* Which family of cells the probed cell of an ordered zone belongs to. */
IJKPlanes_e VtxUtilProbeFieldGetPlane(void);

/* The point that an index or nearest-point probe took; 0 for one that interpolated. */
long VtxUtilProbeFieldGetPoint(void);

/* Where the probe was made, in the plot's axes. Any pointer may be null. */
bool VtxUtilProbeFieldGetPosition(double* x, double* y, double* z);

/* Whether a variable has a value at the probe: it is loaded and present in the zone. */
bool VtxUtilProbeFieldIsVarValid(long variable);
double VtxUtilProbeFieldGetValue(long variable);

/* The value at the centre of the probed cell: as stored for a cell-centred variable, else the mean of its corners. */
bool VtxUtilProbeFieldIsCellCenterValid(long variable);
double VtxUtilProbeFieldGetCellCenterValue(long variable);

/* The values that a probe of something derived from a zone took them from; null when the variable is not there. It
 * belongs to the host and lives as long as the probe's result. */
VtxFieldDataHandle VtxUtilProbeFieldGetReadableNativeRef(long variable);
ValueLocation_e VtxUtilDataValueGetLocationByRef(VtxFieldDataHandle values);

/* Corners of the probed cell (point numbers), faces, and what lies behind a face (from 1): the cell (0: none) and zone
 * of the neighbour. The number of corners of a face, and its points, for polygons and polyhedra as well. */
long VtxUtilProbeFieldGetCellNodeCount(void);
long VtxUtilProbeFieldGetCellNode(long corner);
long VtxUtilProbeFieldGetFaceCount(void);
long VtxUtilProbeFieldGetFaceNodeCount(long face);
long VtxUtilProbeFieldGetFaceNode(long face, long corner);
bool VtxUtilProbeFieldGetFaceNeighbor(long face, long* cell, long* zone);

/* The face, from 1, of a volume's element that was probed on its surface; 0 for any other probe. */
long VtxUtilProbeFieldGetFace(void);

/* The result of the last line probe: the axis, the position on it, and of each line map (from 1) that was probed
 * whether it has a value there, its number, and the value on the other axis. */
char VtxUtilProbeLineGetAxis(void);
int VtxUtilProbeLineGetAxisNumber(void);
double VtxUtilProbeLineGetPosition(void);
long VtxUtilProbeLineGetMapCount(void);
long VtxUtilProbeLineGetMap(long index);
bool VtxUtilProbeLineGetValue(long index, double* value);

/* Of a line probe by index or nearest point: the line map and point (0 when it was by position), and its values. */
long VtxUtilProbeLineGetPickedMap(void);
long VtxUtilProbeLineGetPoint(void);
bool VtxUtilProbeLineGetPickedValues(double* x, double* y);

/*
 * Looks a position up without making it the probe's result: the values of all variables there go to `values`
 * (VtxUtilDataSetGetNumVars() doubles, or null; NaN where the zone does not have a variable in memory). The cell is
 * told by I, J and K, from 1, of its first corner and by its plane; that of a finite-element zone by its number in
 * `iCell`, the others being 1. `zones` restricts the search (null: the active ones). `startWithCell` takes what *zone,
 * *iCell, *jCell, *kCell and *plane hold as the place to begin from. `searchVolume`, `nearestPoint` as above;
 * `zoneOnly` leaves the values alone. Any pointer may be null. False when the position is outside the data; nothing is
 * written then.
 */
bool VtxUtilProbeAtPosition(double x, double y, double z, long* iCell, long* jCell, long* kCell, IJKPlanes_e* plane,
                            long* zone, bool startWithCell, double* values, VtxSetHandle zones, bool searchVolume,
                            bool zoneOnly, bool nearestPoint);

VTX_END_DECLS

#endif
