#include "kernel/PlotAxes.h"

#include "kernel/DataSet.h"

namespace vantrix::kernel {

std::string whyPlotTypeIsRefused(const DataSet* dataSet, PlotType_e plotType)
{
    if (plotType == PlotType_Sketch) {
        return {};
    }
    if (!dataSet || dataSet->zoneCount() == 0) {
        return "The frame has no data; read or create some first.";
    }
    const long needed = plotType == PlotType_Cartesian3D ? 3 : 2;
    if (dataSet->variableCount() < needed) {
        return "The plot needs " + std::to_string(needed) + " variables as axes, and the data have " +
               std::to_string(dataSet->variableCount()) + '.';
    }
    return {};
}

bool plotHasAxis(PlotType_e plotType, char axis, int axisNumber)
{
    constexpr int axesOfLinePlot = 5;
    const bool isFlatAxis = axis == 'X' || axis == 'Y';
    switch (plotType) {
    case PlotType_Cartesian3D:
        return axisNumber == 1 && (isFlatAxis || axis == 'Z');
    case PlotType_Cartesian2D:
    case PlotType_Sketch:
        return axisNumber == 1 && isFlatAxis;
    case PlotType_XYLine:
        return axisNumber >= 1 && axisNumber <= axesOfLinePlot && isFlatAxis;
    case PlotType_PolarLine:
        return axisNumber == 1 && (axis == 'T' || axis == 'R');
    default:
        return false;
    }
}

} // namespace vantrix::kernel
