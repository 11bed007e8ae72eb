/* Pages, frames, the plot of the active frame, and the mouse over it. */
#ifndef VTX_UTIL_FRAME_H
#define VTX_UTIL_FRAME_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

long VtxUtilPageGetCount(void);

/* Frames of the active page; 0 without a page. */
long VtxUtilFrameGetCount(void);

/* A number that no other frame of this process has; 0 when there is no frame. */
long VtxUtilFrameGetUniqueID(void);

/* The plot type of the active frame; `PlotType_Sketch` when there is no frame. */
PlotType_e VtxUtilFrameGetPlotType(void);

/* Sets the plot type of the active frame. Field plots need a data set with variables to serve as axes. */
bool VtxUtilFrameSetPlotType(PlotType_e plotType);

/* Whether contours of the active frame can be coloured by red, green and blue variables: where `GlobalRGB` names three
 * that the frame's data have. False, with a text, where not. */
bool VtxUtilContourOkToTurnOnRGBColoring(void);

/* Gives the active frame another background colour (a colour index); foreground colours of the frame that equal it
 * are changed so that they stay visible. */
SetValueReturnCode_e VtxUtilFrameSetBackgroundColor(long color);

/* Width and height in inches of the active page's paper in its orientation; false without a page. */
bool VtxUtilPaperGetDimensions(double* width, double* height);

/* The same for a size and orientation that are not (yet) set. */
bool VtxUtilPaperGetDimensionsBySize(PaperSize_e size, bool portrait, double* width, double* height);

/* Zooms and moves the work area so that the paper fills it. */
bool VtxUtilWorkViewFitPaper(void);

/* Mouse modes. Setting one that is not valid for the present plot is refused. */
MouseMode_e VtxUtilMouseGetCurrentMode(void);
bool VtxUtilMouseIsValidMode(MouseMode_e mode);
bool VtxUtilMouseSetMode(MouseMode_e mode);

VTX_END_DECLS

#endif
