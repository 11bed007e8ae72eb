/*
 * Geometries of the active frame: lines, rectangles and ellipses drawn over the plot, below the texts. A geometry has a
 * handle above 0 that no other object of the process has; it keeps it through undo and redo. Every change sends
 * `StateChange_Geometry` with the handle as its object.
 */
#ifndef VTX_UTIL_GEOMETRY_H
#define VTX_UTIL_GEOMETRY_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

typedef enum
{
    GeomType_Line = 0,
    GeomType_Rectangle = 1,
    GeomType_Square = 2,
    GeomType_Circle = 3,
    GeomType_Ellipse = 4
} GeomType_e;

typedef enum
{
    ArrowheadAttachment_None = 0,
    ArrowheadAttachment_Beginning = 1,
    ArrowheadAttachment_End = 2,
    ArrowheadAttachment_Both = 3
} ArrowheadAttachment_e;

/*
 * Creates a geometry, or changes an existing one:
 *   "GeometryID"           long    the geometry to change; left out, a geometry is created
 *   "Result"               long*   receives the handle (optional)
 *   "GeomType"             long    a GeomType_e
 *   "PositionCoordSys"     long    a CoordSys_e: % of the frame's width and height from its lower left corner, or data
 *                                  coordinates; those of a 3D plot only for lines
 *   "XPos" "YPos" "ZPos"   double  in those units: the middle of circles and ellipses, the lower left corner of
 *                                  rectangles and squares, of lines what their points are relative to
 *   "Points"               string  of a line: "x y" or "x y z" of each point, separated by ";", and, where a new line
 *                                  begins, by "/", as in "0 0; 10 5; 10 20 / 0 0; 3 3"; at least two for each line
 *   "Width" "Height"       double  of rectangles and ellipses, across and up, above 0; squares and circles have a width
 *                                  only, which is measured along X, and look as such whatever the axes are
 *   "IsClipped"            long    whether what lies outside of the plot's axes is left away
 *   "Color"                long    of the line, a colour index
 *   "IsFilled"             long
 *   "FillColor"            long    a colour index
 *   "LinePattern"          long    a LinePattern_e
 *   "PatternLength"        double  of one repetition, % of the frame's height, above 0
 *   "LineThickness"        double  % of the frame's height, above 0
 *   "ArrowheadAttachment"  long    an ArrowheadAttachment_e: the ends of lines that have arrowheads
 *   "ArrowheadStyle"       long    an ArrowheadStyle_e
 *   "ArrowheadSize"        double  its length, % of the frame's height, above 0
 *   "ArrowheadAngle"       double  between line and edge, degrees, 1 to 90
 *   "MacroFunctionCommand" string  run when the geometry is clicked with Ctrl; may be empty
 * What is left out keeps its value, or of a new geometry its default. An error names the value; nothing is changed
 * then.
 */
bool VtxUtilGeometrySetX(VtxArgListHandle arguments);

/* Reads a geometry: the same names, each with a pointer argument ("XPos" a double*, "Points" a char**, ...). */
bool VtxUtilGeometryGetX(VtxArgListHandle arguments);

bool VtxUtilGeometryDelete(long geometry);
bool VtxUtilGeometryIsValid(long geometry);

/* The geometries of the active frame: the first, and the one that is drawn after another; 0 where there is none. */
long VtxUtilGeometryGetFirst(void);
long VtxUtilGeometryGetNext(long geometry);

VTX_END_DECLS

#endif
