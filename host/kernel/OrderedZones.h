#pragma once

#include "kernel/DataSet.h"
#include "kernel/Progress.h"
#include "kernel/ZoneGrid.h"

namespace vantrix::kernel {

/* See VtxUtilCreateCircularZone() for what the values mean. */
struct CircularZone
{
    long iMax, jMax, kMax;
    double xOrigin, yOrigin, radius;
    double zMin, zMax;
    FieldDataType_e dataType = FieldDataType_Float;
};

/* See VtxUtilCreateRectangularZone(). */
struct RectangularZone
{
    long iMax, jMax, kMax;
    double xMin, yMin, zMin;
    double xMax, yMax, zMax;
    FieldDataType_e dataType = FieldDataType_Float;
};

/*
 * A zone with as many variables as the data set it is for; the ones that serve as coordinates (0 for none) have the
 * points' places, all others are 0 and share one array. Throws DataError, before it takes memory, for a dimension that
 * is too small or too large, a place that is no number or is not to be held in the data type, and any data type but
 * single and double precision; ActionCancelled when `progress` asked to stop. Other threads fill the values, but
 * `progress` is called on this one.
 */
Zone makeZone(const CircularZone& description, long variableCount, const CoordinateVariables& coordinates,
              const ReportProgress& progress = {});
Zone makeZone(const RectangularZone& description, long variableCount, const CoordinateVariables& coordinates,
              const ReportProgress& progress = {});

} // namespace vantrix::kernel
