#include "view/ZoneStyle.h"

#include "kernel/PlotDefaults.h"
#include "view/StyleReader.h"

#include <algorithm>

namespace vantrix::view {
namespace {

constexpr long firstContourColor = 64; /* colour numbers from here on mean "by contour group" */

SurfaceSelection readSurfaces(const StyleReader& style)
{
    SurfaceSelection surfaces;
    surfaces.faces = style.enumerator<SurfacesToPlot_e>("SurfacesToPlot");
    constexpr std::array<const char*, 3> ranges{"IRange", "JRange", "KRange"};
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        const StyleReader range = style.below(ranges[i]);
        surfaces.planes[i] = {range.integer("Min"), range.integer("Max"), range.integer("Skip")};
    }
    return surfaces;
}

MeshStyle readMesh(const StyleReader& style, bool isLayerShown)
{
    return {isLayerShown && style.flag("Show"),
            style.enumerator<MeshType_e>("MeshType"),
            LayerColor::read(style),
            style.real("LineThickness"),
            style.enumerator<LinePattern_e>("LinePattern"),
            style.real("PatternLength")};
}

ContourStyle readContour(const StyleReader& style, bool isLayerShown, bool isLit)
{
    return {isLayerShown && style.flag("Show"),
            style.enumerator<ContourType_e>("ContourType"),
            std::clamp(style.integer("FloodColoring"), 0L, kernel::contourGroupCount),
            std::clamp(style.integer("LineContourGroup"), 1L, kernel::contourGroupCount),
            LayerColor::read(style),
            style.real("LineThickness"),
            isLit && style.flag("UseLightingEffect"),
            style.enumerator<LinePattern_e>("LinePattern"),
            style.real("PatternLength")};
}

VectorStyle readVector(const StyleReader& style, bool isLayerShown)
{
    return {isLayerShown && style.flag("Show"),
            style.enumerator<VectorType_e>("VectorType"),
            style.enumerator<ArrowheadStyle_e>("ArrowheadStyle"),
            style.flag("IsTangent"),
            LayerColor::read(style),
            style.real("LineThickness")};
}

ScatterStyle readScatter(const StyleReader& style, bool isLayerShown)
{
    const SymbolStyle symbol = SymbolStyle::read(style.below("SymbolShape"));
    ScatterStyle scatter;
    scatter.isShown = isLayerShown && style.flag("Show");
    scatter.shape = symbol.shape;
    scatter.character = symbol.character;
    scatter.font = symbol.font;
    scatter.color = LayerColor::read(style);
    scatter.isFilled = style.flag("IsFilled");
    scatter.fill = LayerColor::read(style, "FillColor");
    scatter.isSizedByVariable = style.flag("SizeByVariable");
    scatter.size = style.real("FrameSize");
    scatter.thickness = style.real("LineThickness");
    return scatter;
}

} // namespace

LayerColor LayerColor::read(const StyleReader& style, const char* key)
{
    const long number = style.integer(key);
    if (number < firstContourColor) {
        return {indexedColor(number), 0};
    }
    return {Qt::black, std::min(number - firstContourColor + 1, kernel::contourGroupCount)};
}

SymbolStyle SymbolStyle::read(const StyleReader& shape)
{
    SymbolStyle symbol;
    symbol.shape = shape.enumerator<GeomShape_e>("GeomShape");
    if (shape.flag("IsASCII")) {
        symbol.character = shape.text("ASCIIShape/ASCIIChar");
    }
    if (!shape.flag("ASCIIShape/UseBaseFont")) {
        symbol.font = shape.enumerator<Font_e>("ASCIIShape/FontOverride");
    }
    return symbol;
}

ZoneStyle ZoneStyle::read(const StyleReader& map, const StyleReader& layers, long zone)
{
    ZoneStyle style;
    style.zone = zone;
    const bool isLit = layers.flag("UseLightingEffect");
    style.surfaces = readSurfaces(map.below("Surfaces"));
    style.mesh = readMesh(map.below("Mesh"), layers.flag("ShowMesh"));
    style.contour = readContour(map.below("Contour"), layers.flag("ShowContour"), isLit);
    style.vector = readVector(map.below("Vector"), layers.flag("ShowVector"));
    style.scatter = readScatter(map.below("Scatter"), layers.flag("ShowScatter"));
    const StyleReader shade = map.below("Shade");
    style.shade = {layers.flag("ShowShade") && shade.flag("Show"), shade.color("Color"),
                   isLit && shade.flag("UseLightingEffect")};
    const StyleReader edge = map.below("Edge");
    style.edge = {layers.flag("ShowEdge") && edge.flag("Show"), edge.enumerator<EdgeType_e>("EdgeType"),
                  edge.color("Color"), edge.real("LineThickness")};
    const StyleReader points = map.below("Points");
    style.points = {points.enumerator<PointsToPlot_e>("PointsToPlot"),
                    {points.integer("ISkip"), points.integer("JSkip"), points.integer("KSkip")}};
    const StyleReader effects = map.below("Effects");
    style.lighting = effects.enumerator<LightingEffect_e>("LightingEffect");
    if (layers.flag("UseTranslucency") && effects.flag("UseTranslucency")) {
        style.opacity = 1.0 - double(effects.integer("SurfaceTranslucency")) / 100.0;
    }
    return style;
}

VectorScaleStyle VectorScaleStyle::read(const StyleReader& frame)
{
    const StyleReader variables = frame.below("GlobalStream");
    const StyleReader style = frame.below("GlobalVector");
    return {{variables.integer("UVar"), variables.integer("VVar"), variables.integer("WVar")},
            style.flag("UseRelative"),
            style.real("RelativeLength"),
            style.real("UniformLength"),
            style.real("HeadSizeAsFraction"),
            style.real("HeadAngle")};
}

RgbStyle RgbStyle::read(const StyleReader& frame)
{
    const StyleReader style = frame.below("GlobalRGB");
    return {{style.integer("RedVar"), style.integer("GreenVar"), style.integer("BlueVar")},
            style.real("RangeMin"),
            style.real("RangeMax")};
}

ScatterScaleStyle ScatterScaleStyle::read(const StyleReader& frame)
{
    const StyleReader style = frame.below("GlobalScatter");
    return {style.integer("Var"), style.real("RelativeSize")};
}

} // namespace vantrix::view
