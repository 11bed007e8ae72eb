#include "view/PlotStyle.h"

#include "kernel/DataSet.h"
#include "kernel/Frame.h"
#include "kernel/PlotDefaults.h"
#include "view/StyleReader.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr int lineAxisCount = 5;

FrameStyle readFrame(const StyleReader& style)
{
    const StyleReader layout = style.below("FrameLayout");
    return {style.text("FrameName"),
            layout.flag("ShowBorder"),
            layout.flag("ShowHeader"),
            layout.flag("IsTransparent"),
            layout.color("BackgroundColor"),
            layout.color("HeaderColor"),
            layout.enumerator<Font_e>("HeaderFont"),
            layout.real("BorderThickness")};
}

std::string variableName(const kernel::DataSet* dataSet, long number)
{
    const bool isThere = dataSet && number >= 1 && number <= dataSet->variableCount();
    return isThere ? dataSet->variables[std::size_t(number - 1)].name : std::string();
}

/* Where the axes of a plot type are, and how many. */
struct AxisNames
{
    std::string root;
    std::vector<const char*> details;
};

AxisNames axisNames(PlotType_e type)
{
    switch (type) {
    case PlotType_Cartesian3D:
        return {"ThreeDAxis", {"XDetail", "YDetail", "ZDetail"}};
    case PlotType_XYLine:
        return {"XYLineAxis", {"XDetail", "YDetail"}};
    case PlotType_PolarLine:
        return {"PolarAxis", {"ThetaDetail", "RDetail"}};
    case PlotType_Sketch:
        return {"SketchAxis", {"XDetail", "YDetail"}};
    case PlotType_Cartesian2D:
        break;
    }
    return {"TwoDAxis", {"XDetail", "YDetail"}};
}

LegendStyle readLegend(const StyleReader& style)
{
    LegendStyle legend;
    legend.isShown = style.flag("Show");
    legend.isPlaced = style.flag("IsPlaced");
    legend.position = {style.real("XYPos/X") / 100.0, style.real("XYPos/Y") / 100.0};
    legend.anchor = style.enumerator<AnchorAlignment_e>("AnchorAlignment");
    legend.text = TextStyle::read(style.below("TextShape"));
    legend.text.color = style.color("TextColor");
    legend.rowSpacing = style.real("RowSpacing");
    legend.box = style.enumerator<TextBox_e>("Box/BoxType");
    legend.boxColor = style.color("Box/Color");
    legend.boxFill = style.color("Box/FillColor");
    legend.boxThickness = style.real("Box/LineThickness");
    legend.boxMargin = style.real("Box/Margin");
    return legend;
}

ContourLabelStyle readContourLabels(const StyleReader& style)
{
    ContourLabelStyle labels;
    labels.isShown = style.flag("Show");
    labels.text = TextStyle::read(style.below("TextShape"));
    labels.text.color = style.color("Color");
    labels.isFilled = style.flag("IsFilled");
    labels.fill = style.color("FillColor");
    labels.skip = static_cast<int>(style.integer("Skip"));
    return labels;
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
    group.legend = readLegend(style.below("Legend"));
    group.isLegendUpright = style.flag("Legend/IsVertical");
    group.legendLabelSkip = static_cast<int>(style.integer("Legend/LabelSkip"));
    group.labels = readContourLabels(style.below("Labels"));
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
    light.colorContrast = style.real("SurfaceColorContrast") / 100.0;
    light.forcesGouraud = style.flag("ForceGouraudShading");
    light.forcesPanels = style.flag("ForcePanelShading");
    light.direction = {style.real("Direction/X"), style.real("Direction/Y"), style.real("Direction/Z")};
    return light;
}

SymbolStyle readSymbol(const StyleReader& style)
{
    SymbolStyle symbol = SymbolStyle::read(style.below("SymbolShape"));
    symbol.color = style.color("Color");
    symbol.isFilled = style.flag("IsFilled");
    symbol.fill = style.color("FillColor");
    symbol.size = style.real("Size");
    symbol.thickness = style.real("LineThickness");
    return symbol;
}

LineMapStyle readLineMap(const StyleReader& style, const StyleReader& layers, const kernel::DataSet& dataSet)
{
    LineMapStyle map;
    map.zone = style.integer("Assignment/Zone");
    map.xVariable = style.integer("Assignment/XAxisVar");
    map.yVariable = style.integer("Assignment/YAxisVar");
    map.xAxis = static_cast<int>(style.integer("Assignment/XAxis"));
    map.yAxis = static_cast<int>(style.integer("Assignment/YAxis"));
    map.name = style.text("Name");
    if (map.name.empty()) {
        map.name = variableName(&dataSet, map.yVariable);
    }
    map.hasLines = layers.flag("ShowLines") && style.flag("Lines/Show");
    map.color = style.color("Lines/Color");
    map.thickness = style.real("Lines/LineThickness");
    map.pattern = style.enumerator<LinePattern_e>("Lines/LinePattern");
    map.patternLength = style.real("Lines/PatternLength");
    map.hasSymbols = layers.flag("ShowSymbols") && style.flag("Symbols/Show");
    map.symbol = readSymbol(style.below("Symbols"));
    map.skip = style.integer("Symbols/Skip");
    return map;
}

TripodStyle readTripod(const StyleReader& style)
{
    return {style.flag("Show"),
            style.real("Size"),
            style.color("Color"),
            {style.real("XYPos/X") / 100.0, style.real("XYPos/Y") / 100.0}};
}

std::vector<BlankingBoundaryStyle> readBoundaries(const kernel::StyleStore& store, long frame)
{
    std::vector<BlankingBoundaryStyle> boundaries;
    if (!StyleReader(store, frame, "Blanking/Value").flag("Include")) {
        return boundaries;
    }
    for (long number = 1; number <= kernel::BlankingConstraint::count; ++number) {
        const StyleReader style(store, frame, "Blanking/Value/Constraint", number);
        if (style.flag("Include") && style.flag("Show")) {
            boundaries.push_back({kernel::BlankingConstraint::read(store, frame, number), style.color("Color"),
                                  style.enumerator<LinePattern_e>("LinePattern"), style.real("PatternLength"),
                                  style.real("LineThickness")});
        }
    }
    return boundaries;
}

void readField(PlotStyle& plot, const kernel::StyleStore& store, long frame, const kernel::DataSet& dataSet)
{
    const StyleReader style(store, frame);
    for (long group = 1; group <= kernel::contourGroupCount; ++group) {
        plot.contourGroups.push_back(readContourGroup(StyleReader(store, frame, "GlobalContour", group), dataSet));
    }
    const StyleReader layers = style.below("FieldLayers");
    const long activeEntry = store.entry("ActiveFieldMaps");
    for (long zone = 1; zone <= dataSet.zoneCount(); ++zone) {
        if (dataSet.zoneEnabled[std::size_t(zone - 1)] && store.flag(frame, activeEntry, zone)) {
            plot.zones.push_back(ZoneStyle::read(StyleReader(store, frame, "FieldMap", zone), layers, zone));
            plot.zones.back().name = dataSet.zones[std::size_t(zone - 1)]->name();
        }
    }
    plot.rgb = RgbStyle::read(style);
    plot.vectors = VectorScaleStyle::read(style);
    plot.scatter = ScatterScaleStyle::read(style);
    plot.streamtraces = StreamtraceStyle::read(style);
    plot.scatterLegend = readLegend(style.below("GlobalScatter/Legend"));
    if (plot.type == PlotType_Cartesian2D) {
        plot.blankingBoundaries = readBoundaries(store, frame);
    }
    if (plot.type == PlotType_Cartesian3D) {
        plot.view = readView(style.below("ThreeDView"));
        plot.light = readLight(style.below("GlobalThreeD/LightSource"));
        const StyleReader scale = style.below("GlobalThreeD/AxisScale");
        plot.axisScale = {scale.real("X"), scale.real("Y"), scale.real("Z")};
        const StyleReader axes = style.below("ThreeDAxis");
        const AxisMode_e mode = axes.enumerator<AxisMode_e>("AxisMode");
        if (mode != AxisMode_Independent) {
            plot.axisScale[1] = plot.axisScale[0] / axes.real("DepXToYRatio");
        }
        if (mode == AxisMode_XYZDependent) {
            plot.axisScale[2] = plot.axisScale[0] / axes.real("DepXToZRatio");
        }
        plot.boxPadding = style.real("GlobalThreeD/AxisBoxPadding") / 100.0;
        plot.resetsEdges = style.flag("ThreeDAxis/EdgeAutoReset");
        plot.tripod = readTripod(style.below("ThreeDAxis/FrameAxis"));
    }
}

void readLines(PlotStyle& plot, const kernel::StyleStore& store, long frame, const kernel::DataSet& dataSet)
{
    const StyleReader style(store, frame);
    const StyleReader layers = style.below("LinePlotLayers");
    const long activeEntry = store.entry("ActiveLineMaps");
    const long count = style.integer("FrameSetup/NumLineMaps");
    for (long map = 1; map <= count; ++map) {
        if (store.flag(frame, activeEntry, map)) {
            plot.lineMaps.push_back(readLineMap(StyleReader(store, frame, "LineMap", map), layers, dataSet));
            plot.lineMaps.back().number = map;
        }
    }
    plot.lineLegend = readLegend(style.below("GlobalLinePlot/Legend"));
    plot.lineLegend.hasNames = style.flag("GlobalLinePlot/Legend/ShowText");
}

/* The names, each once, of what line maps show over an axis. */
std::string namesOver(const PlotStyle& plot, const kernel::DataSet* dataSet, std::size_t kind, int number)
{
    constexpr std::size_t most = 3;
    std::vector<long> variables;
    for (const LineMapStyle& map : plot.lineMaps) {
        const long variable = kind == 0 ? map.xVariable : map.yVariable;
        const int axis = plot.type == PlotType_PolarLine ? 1 : kind == 0 ? map.xAxis : map.yAxis;
        if (axis == number && std::find(variables.begin(), variables.end(), variable) == variables.end()) {
            variables.push_back(variable);
        }
    }
    std::string names;
    for (std::size_t i = 0; i < std::min(most, variables.size()); ++i) {
        names += (i > 0 ? ", " : "") + variableName(dataSet, variables[i]);
    }
    return variables.size() > most ? names + ", \u2026" : names;
}

bool isUsed(const PlotStyle& plot, std::size_t kind, int number)
{
    return std::any_of(plot.lineMaps.begin(), plot.lineMaps.end(),
                       [&](const LineMapStyle& map) { return (kind == 0 ? map.xAxis : map.yAxis) == number; });
}

void readAxes(PlotStyle& plot, const kernel::StyleStore& store, long frame, const kernel::DataSet* dataSet)
{
    const bool isXYLine = plot.type == PlotType_XYLine;
    const bool isField = plot.type == PlotType_Cartesian2D || plot.type == PlotType_Cartesian3D;
    const AxisNames names = axisNames(plot.type);
    const StyleReader axes(store, frame, names.root);
    for (std::size_t kind = 0; kind < names.details.size(); ++kind) {
        const std::string path = names.root + "/" + names.details[kind];
        for (int number = 1; number <= (isXYLine ? lineAxisCount : 1); ++number) {
            const StyleReader detail(store, frame, path, isXYLine ? number : -1);
            if (number > 1 && !isUsed(plot, kind, number)) {
                continue;
            }
            const long variable = isField ? detail.integer("VarNum") : 0;
            AxisStyle axis = AxisStyle::read(detail, isField ? variableName(dataSet, variable)
                                                             : namesOver(plot, dataSet, kind, number));
            axis.variable = variable;
            if (number > 1) {
                plot.moreAxes.push_back({kind, number, std::move(axis)});
                continue;
            }
            if (!isField && !plot.lineMaps.empty()) {
                const LineMapStyle& first = plot.lineMaps.front();
                axis.variable = kind == 0 ? first.xVariable : first.yVariable;
            }
            // An axis that no line map is drawn over says nothing.
            const bool isIdle = isXYLine && !plot.lineMaps.empty() && !isUsed(plot, kind, number);
            axis.isShown = axis.isShown && !isIdle;
            plot.axes[kind] = std::move(axis);
        }
    }
    plot.area = AxisAreaStyle::read(axes);
    plot.keepsAxisLengths = axes.flag("PreserveAxisScale");
    if (plot.type == PlotType_PolarLine) {
        plot.thetaPeriod = axes.real("ThetaPeriod");
    } else if (plot.type != PlotType_Cartesian3D && axes.enumerator<AxisMode_e>("AxisMode") != AxisMode_Independent) {
        plot.xToYRatio = axes.real("DepXToYRatio");
    }
}

} // namespace

std::array<double, 3> PlotStyle::worldScale() const
{
    std::array<double, 3> scale = axisScale;
    for (std::size_t i = 0; i < scale.size(); ++i) {
        scale[i] *= axes[i].isReversed ? -1.0 : 1.0;
    }
    return scale;
}

std::array<double, 3> PlotStyle::worldShift() const
{
    std::array<double, 3> shift{};
    for (std::size_t i = 0; i < shift.size(); ++i) {
        shift[i] = axes[i].isReversed ? (axes[i].minimum + axes[i].maximum) * axisScale[i] : 0.0;
    }
    return shift;
}

PlotStyle PlotStyle::read(const kernel::StyleStore& store, const kernel::Frame& frame)
{
    const StyleReader style(store, frame.id());
    PlotStyle result;
    result.type = style.enumerator<PlotType_e>("PlotType");
    result.frame = readFrame(style);
    const kernel::DataSet* dataSet = frame.dataSet().get();
    if (!dataSet && result.type != PlotType_Sketch) {
        return result;
    }
    switch (result.type) {
    case PlotType_Cartesian3D:
    case PlotType_Cartesian2D:
        readField(result, store, frame.id(), *dataSet);
        break;
    case PlotType_XYLine:
    case PlotType_PolarLine:
        readLines(result, store, frame.id(), *dataSet);
        break;
    case PlotType_Sketch:
        break;
    }
    readAxes(result, store, frame.id(), dataSet);
    result.blanking = kernel::ValueBlanking::read(store, frame);
    return result;
}

} // namespace vantrix::view
