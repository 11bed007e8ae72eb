#include "kernel/AxisPlace.h"

#include "kernel/DataError.h"
#include "kernel/Frame.h"
#include "kernel/StyleStore.h"

namespace vantrix::kernel {

namespace {

std::string axesPath(PlotType_e plotType)
{
    switch (plotType) {
    case PlotType_Cartesian3D:
        return "ThreeDAxis/";
    case PlotType_Cartesian2D:
        return "TwoDAxis/";
    case PlotType_XYLine:
        return "XYLineAxis/";
    case PlotType_PolarLine:
        return "PolarAxis/";
    case PlotType_Sketch:
        break;
    }
    return "SketchAxis/";
}

std::string kindsText(PlotType_e plotType)
{
    std::string text;
    for (const char kind : axisKinds(plotType)) {
        text += (text.empty() ? "'" : ", '") + std::string(1, kind) + "'";
    }
    return text;
}

} // namespace

std::string_view axisKinds(PlotType_e plotType)
{
    switch (plotType) {
    case PlotType_Cartesian3D:
        return "XYZ";
    case PlotType_PolarLine:
        return "TR";
    default:
        return "XY";
    }
}

int axesOfAKind(PlotType_e plotType)
{
    return plotType == PlotType_XYLine ? 5 : 1;
}

bool hasAxis(PlotType_e plotType, AxisName axis)
{
    return axis.kind != '\0' && axisKinds(plotType).find(axis.kind) != std::string_view::npos && axis.number >= 1 &&
           axis.number <= axesOfAKind(plotType);
}

AxisPlace AxisPlace::find(const StyleStore& style, const Frame& frame, AxisName axis)
{
    const PlotType_e plotType = plotTypeOf(style, frame);
    if (!hasAxis(plotType, axis)) {
        throw DataError("The plot has no axis " + axisText(axis) + "; it has " + kindsText(plotType) +
                        ", each with numbers from 1 to " + std::to_string(axesOfAKind(plotType)) + ".");
    }
    const std::string detail = axis.kind == 'T' ? "Theta" : std::string(1, axis.kind);
    return {frame.id(), axesPath(plotType) + detail + "Detail/", axesOfAKind(plotType) > 1 ? axis.number : -1};
}

long AxisPlace::entry(const StyleStore& style, const char* value) const
{
    return style.entry((path + value).c_str());
}

PlotType_e plotTypeOf(const StyleStore& style, const Frame& frame)
{
    return static_cast<PlotType_e>(style.integer(frame.id(), style.entry("PlotType")));
}

std::string axisText(AxisName axis)
{
    return "'" + std::string(axis.kind ? 1 : 0, axis.kind) + "' number " + std::to_string(axis.number);
}

} // namespace vantrix::kernel
