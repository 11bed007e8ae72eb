/* The data set of the active frame: its zones and variables, and actions on them. */
#ifndef VTX_UTIL_DATA_H
#define VTX_UTIL_DATA_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/* True when the active frame has a data set with at least one zone. */
bool VtxUtilDataSetIsAvailable(void);

/* Title and size of the data set. Any argument may be null. False when there is no data set. */
bool VtxUtilDataSetGetInfo(char** title, long* zoneCount, long* variableCount);

/* A number that no other data set of this process has; 0 when there is none. */
long VtxUtilDataSetGetUniqueID(void);

long VtxUtilDataSetGetNumVars(void);
long VtxUtilDataSetGetNumZones(void);

/* Deletes zones; zones behind a deleted one move down. Refused for a set that is empty, names a zone that does not
 * exist, or holds every zone. Sends `StateChange_ZonesDeleted`. */
bool VtxUtilDataSetDeleteZone(VtxSetHandle zones);

/* The name of a zone or variable; false when there is no such number. */
bool VtxUtilZoneGetName(long zone, char** name);
bool VtxUtilVarGetName(long variable, char** name);

/* Zones, or variables, that take part; a new set owned by the caller, or null without a data set. */
VtxSetHandle VtxUtilZoneGetEnabled(void);
VtxSetHandle VtxUtilVarGetEnabled(void);

/*
 * The dimensions of a zone: of an ordered one I, J and K points (at least 1 each); of a finite-element one points,
 * cells and corners a cell (0 for polygons and polyhedra). Any pointer may be null. An unknown zone gives zeros.
 */
void VtxUtilZoneGetIJK(long zone, long* iMax, long* jMax, long* kMax);
bool VtxUtilZoneIsOrdered(long zone);
ZoneType_e VtxUtilZoneGetType(long zone);

/* The number of different faces (of flat cells: edges) of all cells of a finite-element zone; 0 of another. Counted
 * once, so the first call for a large zone takes time. */
long VtxUtilZoneGetFaceCount(long zone);

/* Where the values of a variable in a zone belong: to the points or to the cells. Nodal where there is none. */
ValueLocation_e VtxUtilDataValueGetLocation(long zone, long variable);

/* A value of a zone's variable by its position (from 1) among the points, or cells; false, with nothing written, for
 * one that is not there. A variable that is not loaded is loaded first. */
bool VtxUtilDataValueGetByZoneVar(long zone, long variable, long position, double* value);

/* Whether the values of a variable of a zone are in memory, or, false, can be loaded; true where the zone does not have
 * the variable. */
bool VtxUtilDataValueIsLoaded(long zone, long variable);

/* Brings the values of variables of a zone into memory; those that are there already stay. Refused for a zone or
 * variable that does not exist. Sends `StateChange_DataAvailability` when something was loaded. */
bool VtxUtilDataValueLoad(long zone, VtxSetHandle variables);

/* Smallest and largest value of a variable over all enabled zones; NaN and unloaded values are left out. False when
 * there is no such variable or it has no value. */
bool VtxUtilVarGetMinMax(long variable, double* minimum, double* maximum);

/* The variable that serves as an axis ('X', 'Y' or 'Z') of the active frame's plot; 0 when none does. */
long VtxUtilVarGetNumByAssignment(char axis);

/*
 * Creates an ordered zone of I x J x K points at the end of the active frame's data set; a data set is made when the
 * frame has none, with variables "X", "Y" (and "Z" when K > 1). Every variable that is not an axis is 0 in the zone.
 * Refused when a dimension is below 1, when the number of points is more than the machine can hold, or when K > 1 in a
 * plot that has no third axis. Sends `StateChange_ZonesAdded` (`StateChange_DataSetReset` when the data set is new).
 *
 * Circular: I points along the radius (at least 2), from the origin outwards; J around the circumference (at least 2),
 * the last on the first; K from zMin to zMax. `radius` is above 0.
 *
 * Rectangular: I, J, K points (at least 1 each) spaced evenly from the minima to the maxima, which may lie the other
 * way round.
 */
bool VtxUtilCreateCircularZone(long iMax, long jMax, long kMax, double xOrigin, double yOrigin, double radius,
                               double zMin, double zMax, FieldDataType_e dataType);
bool VtxUtilCreateRectangularZone(long iMax, long jMax, long kMax, double xMin, double yMin, double zMin, double xMax,
                                  double yMax, double zMax, FieldDataType_e dataType);

VTX_END_DECLS

#endif
