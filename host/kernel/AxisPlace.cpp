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

std::string kindText(char kind)
{
    return kind == 'T' ? "Theta" : std::string(kind ? 1 : 0, kind);
}

/* "X and Y", "X1 to X5 and Y1 to Y5" */
std::string kindsText(PlotType_e plotType)
{
    const std::string_view kinds = axisKinds(plotType);
    std::string text;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        text += i == 0 ? "" : i + 1 < kinds.size() ? ", " : " and ";
        text += axisText(plotType, {kinds[i], 1});
        if (axesOfAKind(plotType) > 1) {
            text += " to " + axisText(plotType, {kinds[i], axesOfAKind(plotType)});
        }
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

bool canBeLogarithmic(PlotType_e plotType, char kind)
{
    return plotType == PlotType_XYLine || (plotType == PlotType_PolarLine && kind == 'R');
}

AxisPlace AxisPlace::find(const Frame& frame, PlotType_e plotType, AxisName axis)
{
    if (!hasAxis(plotType, axis)) {
        throw DataError("The plot has no axis " + axisText(plotType, axis) + "; it has " + kindsText(plotType) + '.');
    }
    return {frame.id(), axisPath(plotType, axis.kind), axesOfAKind(plotType) > 1 ? axis.number : -1};
}

long AxisPlace::entry(const StyleStore& style, const char* value) const
{
    return style.entry((path + value).c_str());
}

PlotType_e plotTypeOf(const StyleStore& style, const Frame& frame)
{
    return static_cast<PlotType_e>(style.integer(frame.id(), style.entry("PlotType")));
}

std::string axisPath(PlotType_e plotType, char kind)
{
    return axesPath(plotType) + kindText(kind) + "Detail/";
}

std::string axisText(PlotType_e plotType, AxisName axis)
{
    const bool isNumbered = axesOfAKind(plotType) > 1 || axis.number != 1;
    return kindText(axis.kind) + (isNumbered ? std::to_string(axis.number) : std::string());
}

} // namespace vantrix::kernel
