#include "view/StreamtraceStyle.h"

#include "kernel/PlotDefaults.h"
#include "view/StyleReader.h"

#include <algorithm>

namespace vantrix::view {
namespace {

StreamlineStyle readLine(const StyleReader& style)
{
    return {LayerColor::read(style), style.real("LineThickness"), style.flag("AddArrows"), style.real("ArrowheadSize"),
            style.real("ArrowheadSpacing")};
}

RodRibbonStyle readRodRibbon(const StyleReader& style)
{
    RodRibbonStyle result;
    result.width = style.real("Width");
    result.rodCorners = style.integer("NumRodPoints");
    result.mesh.isShown = style.flag("Mesh/Show");
    result.mesh.color.color = style.color("Mesh/Color");
    result.mesh.thickness = style.real("Mesh/LineThickness");
    const StyleReader contour = style.below("Contour");
    result.contour.isShown = contour.flag("Show");
    result.contour.type = contour.enumerator<ContourType_e>("ContourType");
    result.contour.floodGroup = std::clamp(contour.integer("FloodColoring"), 1L, kernel::contourGroupCount);
    result.contour.lineGroup = contour.integer("LineContourGroup");
    result.contour.lineColor = LayerColor::read(contour);
    result.contour.isLit = contour.flag("UseLightingEffect");
    result.shade = {style.flag("Shade/Show"), style.color("Shade/Color"), style.flag("Shade/UseLightingEffect")};
    result.lighting = style.enumerator<LightingEffect_e>("Effects/LightingEffect");
    if (style.flag("Effects/UseTranslucency")) {
        result.opacity = 1.0 - double(style.integer("Effects/SurfaceTranslucency")) / 100.0;
    }
    return result;
}

ScatterStyle readMark(const StyleReader& style)
{
    const SymbolStyle symbol = SymbolStyle::read(style.below("MarkSymbol"));
    ScatterStyle mark;
    mark.shape = symbol.shape;
    mark.character = symbol.character;
    mark.font = symbol.font;
    mark.color = LayerColor::read(style, "MarkColor");
    mark.fill = mark.color;
    mark.size = style.real("MarkSize");
    return mark;
}

} // namespace

StreamtraceStyle StreamtraceStyle::read(const StyleReader& frame)
{
    const StyleReader style = frame.below("StreamAttributes");
    const StyleReader timing = style.below("StreamTiming");
    StreamtraceStyle result;
    result.isShown = frame.flag("StreamtraceLayers/Show");
    result.hasPaths = style.flag("ShowPaths");
    result.line = readLine(style);
    result.rodRibbon = readRodRibbon(style.below("RodRibbon"));
    result.hasMarks = timing.flag("ShowMarkers");
    result.mark = readMark(timing);
    result.times = {timing.real("TimeStart"), timing.real("TimeEnd"), timing.real("TimeDelta"),
                    timing.real("TimeAnchor")};
    result.dashSkip = timing.flag("ShowDashes") ? timing.integer("DashSkip") : 0;
    return result;
}

} // namespace vantrix::view
