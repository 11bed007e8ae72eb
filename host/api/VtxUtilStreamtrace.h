/*
 * Streamtraces of the active frame: lines, ribbons and rods that follow the vectors of its field plot. They are counted
 * from 1 in the order in which they were placed, and stay where they are when data or vectors change. A 2D plot draws
 * those of type `Streamtrace_TwoDLine`, a 3D plot the others; what they look like, and how they are traced, is style
 * ("StreamtraceLayers", "StreamAttributes"). Every change sends `StateChange_Streamtrace`.
 */
#ifndef VTX_UTIL_STREAMTRACE_H
#define VTX_UTIL_STREAMTRACE_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/* Where new streamtraces start. */
typedef enum
{
    DistributionRegion_Point = 0,
    DistributionRegion_Rake = 1, /* evenly along a straight line, both ends included */
    DistributionRegion_SurfacesOfSelectedObjects = 2,
    DistributionRegion_SurfacesOfActiveZones = 3
} DistributionRegion_e;

/* True when the active frame can show streamtraces: a 2D or 3D Cartesian plot of data, with vectors or without. */
bool VtxUtilQueryCanPlotStreamtraces(void);

/* Whether a zone offers streamtraces its inside alone: a volume whose "Surfaces to Plot" is none. Lines on surfaces
 * have nothing to lie on there. False for a zone that does not exist. */
bool VtxUtilQueryZoneCanPlotVolumeStreamtraces(long zone);

long VtxUtilStreamtraceGetCount(void);

/*
 * Adds streamtraces behind those that there are. "StreamType" (long) is a Streamtrace_e: `Streamtrace_TwoDLine` in a 2D
 * plot, one of the others in a 3D plot; "StreamDirection" (long) is a StreamDir_e. Without them it is what the frame
 * has for its plot type ("FrameSetup" / "Default2DStreamtrace", "Default3DStreamtrace").
 *
 * "DistributionRegion" (long) is a DistributionRegion_e; without it a rake when a second position is given, else a
 * point. "X1", "Y1" and, in 3D only, "Z1" (double) are the position, or the beginning of a rake, in coordinates of the
 * axes; "X2", "Y2", "Z2" the end of a rake. Instead, "Zone" with "I1", "J1", "K1" and "I2", "J2", "K2" (long) name
 * points of a zone, counted from 1; J and K may be left out and are then 1. Of a finite-element zone "I1" is the number
 * of a point. "NumPts" (long, 1 to 5000) is how many streamtraces a rake or surfaces get; without it "FrameSetup" /
 * "NumStreamrakePoints".
 *
 * Lines on surfaces start on the surface that is nearest, no further away than a hundredth of the size of its zone. The
 * volume formats start inside of volumes; a position that is as near as that to the surface of one starts just below
 * it. On surfaces the starts are centres of cells, spread evenly over all cells that the plot shows of the picked, or
 * the active, zones: the same ones each time. Of a rake the points that lie outside of the data are left away.
 *
 * Refused, with nothing added: in another plot, without variables for the vectors, for a position or whole rake outside
 * of the data, for a type that does not belong to the plot, for an argument that is unknown or out of range.
 */
bool VtxUtilStreamtraceAddX(VtxArgListHandle arguments);

/* Deletes some streamtraces; those behind move up. Refused for a range that is not there. */
bool VtxUtilStreamtraceDeleteRange(long first, long last);

/* Without streamtraces it does nothing. */
bool VtxUtilStreamtraceDeleteAll(void);

/* Where a streamtrace starts, its type and direction; any pointer may be null. False, with nothing written, for one
 * that is not there. */
bool VtxUtilStreamtraceGetPosition(long streamtrace, double* x, double* y, double* z);
bool VtxUtilStreamtraceGetFormat(long streamtrace, Streamtrace_e* type, StreamDir_e* direction);

VTX_END_DECLS

#endif
