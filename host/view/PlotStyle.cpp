#include "view/PlotStyle.h"

#include "kernel/DataSet.h"
#include "kernel/Frame.h"
#include "view/StyleReader.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr long contourGroupCount = 8;
constexpr std::array<const char*, 3> detailNames{"XDetail", "YDetail", "ZDetail"};

/* Texts are as high as their style says relative to the height that the plot would give them. */
constexpr double usualTextHeight = 2.8;

FrameStyle readFrame(const StyleReader& style)
{
    const StyleReader layout = style.below("FrameLayout");
    return {style.text("FrameName"),       layout.flag("ShowBorder"),       layout.flag("ShowHeader"),
            layout.flag("IsTransparent"),  layout.color("BackgroundColor"), layout.color("HeaderColor"),
            layout.real("BorderThickness")};
}

double textScale(const StyleReader& shape)
{
    const double height = shape.real("Height");
    return shape.enumerator<Units_e>("SizeUnits") == Units_Frame ? height / usualTextHeight : 1.0;
}

std::string variableName(const kernel::DataSet* dataSet, long number)
{
    const bool isThere = dataSet && number >= 1 && number <= dataSet->variableCount();
    return isThere ? dataSet->variables[std::size_t(number - 1)].name : std::string();
}

AxisStyle readAxis(const StyleReader& style, const std::string& variable)
{
    AxisStyle axis;
    axis.isShown = style.flag("ShowAxis");
    axis.isLogarithmic = style.has("CoordScale") && style.enumerator<CoordScale_e>("CoordScale") == CoordScale_Log;
    axis.isReversed = style.flag("IsReversed");
    axis.minimum = style.real("RangeMin");
    axis.maximum = style.real("RangeMax");
    if (!style.flag("AutoGrid")) {
        axis.spacing = style.real("GRSpacing");
        axis.anchor = style.real("GRAnchor");
    }
    axis.minorTicks = axis.spacing > 0.0 ? static_cast<int>(style.integer("Ticks/NumMinorTicks")) : -1;
    axis.lineColor = style.color("AxisLine/Color");
    axis.labelColor = style.color("TickLabel/Color");
    axis.titleColor = style.color("Title/Color");
    axis.labelScale = textScale(style.below("TickLabel/TextShape"));
    axis.titleScale = textScale(style.below("Title/TextShape"));
    axis.hasGridLines = style.flag("GridLines/Show");
    axis.gridColor = style.color("GridLines/Color");
    switch (style.enumerator<AxisTitleMode_e>("Title/TitleMode")) {
    case AxisTitleMode_None:
        break;
    case AxisTitleMode_VariableName:
        axis.title = variable;
        break;
    case AxisTitleMode_Text:
        axis.title = style.text("Title/Text");
        break;
    }
    return axis;
}

const char* axisRoot(PlotType_e type)
{
    switch (type) {
    case PlotType_Cartesian3D:
        return "ThreeDAxis";
    case PlotType_XYLine:
        return "XYLineAxis";
    default:
        return "TwoDAxis";
    }
}

ContourGroupStyle readContourGroup(const StyleReader& style, const kernel::DataSet& dataSet)
{
    ContourGroupStyle group;
    group.variable = style.integer("Var");
    group.title = style.flag("Legend/ShowHeader") ? variableName(&dataSet, group.variable) : std::string();
    group.isContinuous = style.flag("ColorMap/IsContinuous");
    group.isReversed = style.flag("ColorMap/IsReversed");
    group.colorMap = style.text("ColorMap/Name");
    if (style.flag("ColorCutoff/UseMin")) {
        group.cutoff.minimum = style.real("ColorCutoff/Min");
    }
    if (style.flag("ColorCutoff/UseMax")) {
        group.cutoff.maximum = style.real("ColorCutoff/Max");
    }
    group.hasLegend = style.flag("Legend/Show");
    const double first = style.real("Levels/Min");
    const double last = style.real("Levels/Max");
    const long count = style.integer("Levels/Count");
    for (long i = 0; i < count && (last > first || i == 0); ++i) {
        const double level = count > 1 ? std::lerp(first, last, double(i) / double(count - 1)) : first;
        // Rounding must not leave a trace of a level that is meant to be zero.
        group.levels.push_back(std::abs(level) < 1e-12 * (last - first) ? 0.0 : level);
    }
    return group;
}

View3D readView(const StyleReader& style)
{
    View3D view;
    view.psi = style.real("PsiAngle");
    view.theta = style.real("ThetaAngle");
    view.alpha = style.real("AlphaAngle");
    view.position = {style.real("ViewerPosition/X"), style.real("ViewerPosition/Y"), style.real("ViewerPosition/Z")};
    view.isPerspective = style.flag("DrawInPerspective");
    view.fieldOfView = style.real("FieldOfView");
    // Where the viewer was never placed, the plot is fitted.
    view.width = view.position == std::array{0.0, 0.0, 0.0} ? 0.0 : style.real("ViewWidth");
    return view;
}

LightStyle readLight(const StyleReader& style)
{
    LightStyle light;
    light.background = style.real("BackgroundLight") / 100.0;
    light.intensity = style.real("Intensity") / 100.0;
    light.hasHighlights = style.flag("IncludeSpecularHighlights");
    light.highlight = style.real("SpecularIntensity") / 100.0;
    light.shininess = style.real("SpecularShininess");
    light.direction = {style.real("Direction/X"), style.real("Direction/Y"), style.real("Direction/Z")};
    return light;
}

LineMapStyle readLineMap(const StyleReader& style, bool hasLines, const kernel::DataSet& dataSet)
{
    LineMapStyle map;
    map.zone = style.integer("Assignment/Zone");
    map.xVariable = style.integer("Assignment/XAxisVar");
    map.yVariable = style.integer("Assignment/YAxisVar");
    map.name = style.text("Name");
    if (map.name.empty()) {
        map.name = variableName(&dataSet, map.yVariable);
    }
    map.hasLines = hasLines && style.flag("Lines/Show");
    map.color = style.color("Lines/Color");
    map.thickness = style.real("Lines/LineThickness");
    map.pattern = style.enumerator<LinePattern_e>("Lines/LinePattern");
    return map;
}

void readField(PlotStyle& plot, const kernel::StyleStore& store, long frame, const kernel::DataSet& dataSet)
{
    const StyleReader style(store, frame);
    for (long group = 1; group <= contourGroupCount; ++group) {
        plot.contourGroups.push_back(readContourGroup(StyleReader(store, frame, "GlobalContour", group), dataSet));
    }
    const StyleReader layers = style.below("FieldLayers");
    const long activeEntry = store.entry("ActiveFieldMaps");
    for (long zone = 1; zone <= dataSet.zoneCount(); ++zone) {
        if (dataSet.zoneEnabled[std::size_t(zone - 1)] && store.flag(frame, activeEntry, zone)) {
            plot.zones.push_back(ZoneStyle::read(StyleReader(store, frame, "FieldMap", zone), layers, zone));
        }
    }
    plot.vectors = VectorScaleStyle::read(style);
    plot.scatter = ScatterScaleStyle::read(style);
    if (plot.type == PlotType_Cartesian3D) {
        plot.view = readView(style.below("ThreeDView"));
        plot.light = readLight(style.below("GlobalThreeD/LightSource"));
        const StyleReader scale = style.below("GlobalThreeD/AxisScale");
        plot.axisScale = {scale.real("X"), scale.real("Y"), scale.real("Z")};
    }
}

void readLines(PlotStyle& plot, const kernel::StyleStore& store, long frame, const kernel::DataSet& dataSet)
{
    const StyleReader style(store, frame);
    const bool hasLines = style.flag("LinePlotLayers/ShowLines");
    const long activeEntry = store.entry("ActiveLineMaps");
    const long count = style.integer("FrameSetup/NumLineMaps");
    for (long map = 1; map <= count; ++map) {
        if (store.flag(frame, activeEntry, map)) {
            plot.lineMaps.push_back(readLineMap(StyleReader(store, frame, "LineMap", map), hasLines, dataSet));
        }
    }
    plot.hasLineLegend = style.flag("GlobalLinePlot/Legend/Show");
}

} // namespace

PlotStyle PlotStyle::read(const kernel::StyleStore& store, const kernel::Frame& frame)
{
    const StyleReader style(store, frame.id());
    PlotStyle result;
    result.type = style.enumerator<PlotType_e>("PlotType");
    result.frame = readFrame(style);
    const kernel::DataSet* dataSet = frame.dataSet().get();
    const bool isField = result.type == PlotType_Cartesian2D || result.type == PlotType_Cartesian3D;
    if (!dataSet || !(isField || result.type == PlotType_XYLine)) {
        return result;
    }
    if (isField) {
        readField(result, store, frame.id(), *dataSet);
    } else {
        readLines(result, store, frame.id(), *dataSet);
    }

    const std::string root = axisRoot(result.type);
    const StyleReader axes = style.below(root);
    const std::size_t axisCount = result.type == PlotType_Cartesian3D ? 3 : 2;
    for (std::size_t i = 0; i < axisCount; ++i) {
        const long number = isField ? -1 : 1;
        const StyleReader detail(store, frame.id(), root + "/" + detailNames[i], number);
        long variable = 0;
        if (isField) {
            variable = detail.integer("VarNum");
        } else if (!result.lineMaps.empty()) {
            variable = i == 0 ? result.lineMaps.front().xVariable : result.lineMaps.front().yVariable;
        }
        result.axes[i] = readAxis(detail, variableName(dataSet, variable));
        result.axes[i].variable = variable;
    }
    if (result.type != PlotType_Cartesian3D) {
        if (axes.enumerator<AxisMode_e>("AxisMode") != AxisMode_Independent) {
            result.xToYRatio = axes.real("DepXToYRatio");
        }
        result.isFilled = axes.flag("GridArea/IsFilled");
        result.fill = axes.color("GridArea/FillColor");
        const StyleReader viewport = axes.below("ViewportPosition");
        result.viewport = {viewport.real("X1") / 100.0, viewport.real("X2") / 100.0, viewport.real("Y1") / 100.0,
                           viewport.real("Y2") / 100.0};
    }
    return result;
}

} // namespace vantrix::view
