/*
 * Axes of the active frame's plot.
 *
 * An axis is named by a character and a number. The characters are 'X', 'Y' and, in a 3D plot, 'Z'; in a polar plot 'T'
 * (theta) and 'R'. The number is 1 but in an XY line plot, which has X and Y axes 1 to 5. A function given an axis that
 * the plot does not have fails.
 *
 * The minimum of an axis is below its maximum and, where the axis is logarithmic, above 0; a style value that would end
 * that is refused (`SetValueReturnCode_Refused`). Who sets both ends sets first the one that leaves them in order. An
 * axis that becomes logarithmic gets a minimum above 0 if it has none.
 */
#ifndef VTX_UTIL_AXIS_H
#define VTX_UTIL_AXIS_H

#include "api/VtxUtilBase.h"

VTX_BEGIN_DECLS

/* Sets the range of an axis to what its variable takes in the active zones, or line maps, shown over it. Refused when
 * there is no data to fit to. */
bool VtxUtilViewAxisFit(char axis, int axisNumber);

/* The same, widened to the nearest nice values: multiples of 1, 2 or 5 times a power of ten, of a log axis powers of
 * ten. */
bool VtxUtilViewAxisNiceFit(char axis, int axisNumber);

/* Sets the range of theta to one period that starts at its present minimum, or of R to begin at the value at the
 * centre, so that the whole circle is seen. Polar plots only. */
bool VtxUtilViewAxisFitToEntireCircle(char axis, int axisNumber);

/* Widens the present range of an axis to nice values. */
bool VtxUtilViewAxisMakeCurValsNice(char axis, int axisNumber);

/*
 * Changes the view:
 *   "ViewOP"            long    a ViewOp_e
 *   "Axis"              long    the axis character; for `ViewOp_AxisFit`
 *   "AxisNum"           long    its number; for `ViewOp_AxisFit`, 1 when it is left out
 *   "ConsiderBlanking"  long    whether blanked data are left out of what is fitted to (optional, false)
 * `ViewOp_Fit` fits all axes to nice values about their data, `ViewOp_DataFit` to the data alone; both let the whole of
 * a 3D plot be seen, from the direction it is seen from. `ViewOp_AxisFit` is VtxUtilViewAxisFit().
 */
bool VtxUtilViewX(VtxArgListHandle arguments);

/* The next value that a range field steps to from `value`, up or down: a twentieth of the axis' range on, or with
 * `nice` the next nice value at that size of step. A log axis steps by factors. `value` itself where there is no such
 * axis, and where the step would take a value above the minimum down to it, or one below the maximum up to it. */
double VtxUtilAxisGetNextRangeValue(char axis, int axisNumber, double value, bool up, bool nice);

/* How far labelled ticks of an axis are apart: while their spacing is chosen by the plot (`AutoGrid`) as it was drawn
 * last, else, and where it was not drawn or the ticks are not evenly spaced, the style's `GRSpacing`. False when there
 * is no such axis. */
bool VtxUtilAxisGetTickSpacing(char axis, int axisNumber, double* spacing);

/* Puts the size factors of a 3D plot and the dependency of its axes back to what suits its data. */
bool VtxUtilReset3DScaleFactors(void);

/* Whether X and Y of a frame's plot may depend on each other: not where one of them is logarithmic, nor in an XY line
 * plot that uses axes other than X1 and Y1. False for a frame that does not exist. */
bool VtxUtilQueryIsXYDependentAllowedForFrame(long frameId);

/* The variables that serve as X, Y and Z of the active frame's plot (theta and R in a polar one); 0 where none does. In
 * a line plot those of the first active line map. Any pointer may be null. False without a data set. */
bool VtxUtilAxisGetVarAssignments(long* xVariable, long* yVariable, long* zVariable);

/* How the numbers of an axis are written; `NumberFormat_BestFloat` where there is no such axis. */
NumberFormat_e VtxUtilAxisLabelGetNumberFormat(char axis, int axisNumber);

/* The time and date format of an axis' numbers; see VtxUtilStringFormatTimeDate(). False when there is no such axis. */
bool VtxUtilAxisLabelGetTimeDateFormat(char axis, int axisNumber, char** format);

/*
 * Writes a number as a time and date: days since 1899-12-30, the fraction being the time of day. In the format "yyyy"
 * and "yy" are the year, "mmmm", "mmm", "mm", "m" the month, "dddd", "ddd", "dd", "d" the day, "hh", "h" hours, "mm"
 * and "m" behind hours or before seconds minutes, "ss" and "s" seconds, "AM/PM" half days; anything else stands for
 * itself, and a backslash takes its meaning from the letter behind it. False for a number that is no date of years 1 to
 * 9999.
 */
bool VtxUtilStringFormatTimeDate(double value, const char* format, char** text);

/* Whether value blanking leaves any data out of the active frame's plot. */
bool VtxUtilBlankingIsActive(void);

VTX_END_DECLS

#endif
