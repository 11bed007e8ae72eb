/* What a layout file holds: pages, frames at their places, and files of layouts and macros. */
#ifndef VTX_UTIL_DOCUMENT_H
#define VTX_UTIL_DOCUMENT_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/* Adds a frame on top of the active page and makes it active: left and top edge in inches from the paper's upper left
 * corner, width and height in inches, at least 0.25. */
bool VtxUtilFrameCreate(double left, double top, double width, double height);

/* Acts on a frame of the active page. Deleting the only frame leaves an empty one. */
bool VtxUtilFrameDelete(long frameId);
bool VtxUtilFrameActivate(long frameId);
bool VtxUtilFramePop(long frameId);
bool VtxUtilFramePush(long frameId);

/* Moves and resizes a frame of the active page; the same limits as for a new one. */
bool VtxUtilFrameSetRect(long frameId, double left, double top, double width, double height);

/* The identifier of frame `position` (from 1, the last is on top) of the active page; 0 when there is none. */
long VtxUtilFrameGetIdAt(long position);

/*
 * Data sets that frames show, numbered from 1 in the order of pages and frames. Frames may show the same one; a change
 * of its data is then seen in all of them, while each has a plot type and style of its own.
 */
long VtxUtilFrameGetDataSetCount(void);

/* The title of a data set; false where there is no such number. */
bool VtxUtilFrameGetDataSetTitle(long number, char** title);

/* The number of what the active frame shows; 0 for none. */
long VtxUtilFrameGetDataSetNumber(void);

/* Shows a data set in the active frame, with the plot that suits it, unless the frame shows it already. Sends
 * `StateChange_DataSetReset`. */
bool VtxUtilFrameAttachDataSet(long number);

/* Adds a frame that shows the same data on top of the active one, from half an inch right of and below its corner to
 * its opposite corner, and makes it active. */
bool VtxUtilFrameCreateOnSameData(void);

/* Adds a page with one empty frame behind the others and makes it active. The last page cannot be deleted. */
bool VtxUtilPageCreate(void);
bool VtxUtilPageDelete(long position);
bool VtxUtilPageActivate(long position);
long VtxUtilPageGetActive(void);

/*
 * A layout is a readable file of every page and frame, their style, texts, and how their data came to be; the settings
 * of the program itself (style values of the process) are not in it. Saving replaces the file at once or leaves it as
 * it was. Opening replaces everything, or on any error nothing; entries that are not known are kept for the next save
 * and named in the status line. Not to be called under the lock.
 */
bool VtxUtilLayoutNew(void);
bool VtxUtilLayoutSave(const char* file);
bool VtxUtilLayoutOpen(const char* file);

/* Opens data files, or a built-in data set, in the active frame. */
bool VtxUtilDataRead(const char* const* files, long count);
bool VtxUtilDataReadSample(const char* name);

/*
 * A macro is a text file with one command a line. Recording writes one line for each outermost lock that asks for it.
 * Running stops at the first command that fails; what the commands before it did stays, as steps that can be undone,
 * and the error names file and line.
 */
bool VtxUtilMacroRecordStart(const char* file);
bool VtxUtilMacroRecordStop(void);
bool VtxUtilMacroIsRecordingActive(void);
bool VtxUtilMacroRun(const char* file);

VTX_END_DECLS

#endif
