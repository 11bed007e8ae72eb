#pragma once

#include "api/VtxUtilStreamtrace.h"

namespace vantrix::kernel {

/* A streamtrace of a frame; see VtxUtilStreamtrace.h. It starts at a position in the coordinates of the axes, and what
 * it passes is found when it is traced. */
struct Streamtrace
{
    long handle = 0;
    Streamtrace_e type = Streamtrace_TwoDLine;
    StreamDir_e direction = StreamDir_Both;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    bool operator==(const Streamtrace&) const = default;
};

/* Whether a streamtrace passes the inside of volumes. */
inline bool isVolumeFormat(Streamtrace_e type)
{
    return type == Streamtrace_VolumeLine || type == Streamtrace_VolumeRibbon || type == Streamtrace_VolumeRod;
}

/* Whether streamtraces of a type are drawn in a plot of that type. */
inline bool belongsTo(PlotType_e plotType, Streamtrace_e type)
{
    return plotType == (type == Streamtrace_TwoDLine ? PlotType_Cartesian2D : PlotType_Cartesian3D);
}

} // namespace vantrix::kernel
