#include "view/AxisStyle.h"

#include "view/StyleReader.h"

namespace vantrix::view {
namespace {

ShownOn readShownOn(const StyleReader& style)
{
    return {style.flag("ShowOnAxisLine"), style.flag("ShowOnAllAxes"), style.flag("ShowOnGridBorderMin"),
            style.flag("ShowOnGridBorderMax"), style.flag("ShowOnOppositeEdge")};
}

AxisLineStyle readLine(const StyleReader& style)
{
    AxisLineStyle line;
    line.isShown = style.flag("Show");
    line.color = style.color("Color");
    line.thickness = style.real("LineThickness");
    line.alignment = style.enumerator<AxisAlignment_e>("AxisAlignment");
    line.offset = style.real("Offset");
    line.position = style.real("Position");
    line.opposingValue = style.real("OpposingAxisValue");
    line.angle = style.real("Angle");
    line.edge = static_cast<int>(style.integer("Edge"));
    line.hasBothDirections = style.flag("ShowBothDirections");
    line.hasOppositeEdge = style.flag("ShowOppositeEdge");
    line.hasPerpendicular = style.flag("ShowPerpendicular");
    return line;
}

TickStyle readTicks(const StyleReader& style)
{
    TickStyle ticks;
    ticks.shownOn = readShownOn(style);
    ticks.length = style.real("Length");
    ticks.thickness = style.real("LineThickness");
    ticks.minorLength = style.real("MinorLength");
    ticks.minorThickness = style.real("MinorLineThickness");
    ticks.minorCount = static_cast<int>(style.integer("NumMinorTicks"));
    ticks.direction = style.enumerator<TickDirection_e>("TickDirection");
    return ticks;
}

TickLabelStyle readLabels(const StyleReader& style)
{
    TickLabelStyle labels;
    labels.shownOn = readShownOn(style);
    labels.text = TextStyle::read(style.below("TextShape"));
    labels.text.color = style.color("Color");
    labels.alignment = style.enumerator<LabelAlignment_e>("LabelAlignment");
    labels.angle = style.real("Angle");
    labels.offset = style.real("Offset");
    labels.erasesBehind = style.flag("EraseBehindLabels");
    labels.isAtIntersections = style.flag("ShowAtAxisIntersection");
    labels.skip = static_cast<int>(style.integer("Skip"));
    labels.number.format = style.enumerator<NumberFormat_e>("NumFormat/Formatting");
    labels.number.precision = static_cast<int>(style.integer("NumFormat/Precision"));
    labels.number.timeDate = style.text("NumFormat/TimeDateFormat");
    return labels;
}

AxisTitleStyle readTitle(const StyleReader& style, const std::string& variable)
{
    AxisTitleStyle title;
    title.shownOn = readShownOn(style);
    title.text = TextStyle::read(style.below("TextShape"));
    title.text.color = style.color("Color");
    title.offset = style.real("Offset");
    title.percentAlong = style.real("PercentAlongLine");
    switch (style.enumerator<AxisTitleMode_e>("TitleMode")) {
    case AxisTitleMode_None:
        break;
    case AxisTitleMode_VariableName:
        title.words = variable;
        break;
    case AxisTitleMode_Text:
        title.words = style.text("Text");
        break;
    }
    return title;
}

GridLineStyle readGrid(const StyleReader& style)
{
    GridLineStyle grid;
    grid.isShown = style.flag("Show");
    grid.color = style.color("Color");
    grid.thickness = style.real("LineThickness");
    grid.pattern = style.enumerator<LinePattern_e>("LinePattern");
    grid.patternLength = style.real("PatternLength");
    grid.cutoff = style.real("Cutoff");
    grid.isLast = style.flag("DrawGridLast");
    return grid;
}

} // namespace

double TextStyle::inches(double frameHeight) const
{
    constexpr double pointsPerInch = 72.0;
    return units == Units_Point ? height / pointsPerInch : height / 100.0 * frameHeight;
}

TextStyle TextStyle::read(const StyleReader& shape)
{
    TextStyle text;
    text.font = shape.enumerator<Font_e>("Font");
    text.units = shape.enumerator<Units_e>("SizeUnits");
    text.height = shape.real("Height");
    return text;
}

AxisStyle AxisStyle::read(const StyleReader& detail, const std::string& variable)
{
    AxisStyle axis;
    axis.isShown = detail.flag("ShowAxis");
    axis.isLogarithmic = detail.has("CoordScale") && detail.enumerator<CoordScale_e>("CoordScale") == CoordScale_Log;
    axis.isReversed = detail.flag("IsReversed");
    axis.minimum = detail.real("RangeMin");
    axis.maximum = detail.real("RangeMax");
    if (!detail.flag("AutoGrid")) {
        axis.spacing = detail.real("GRSpacing");
        axis.anchor = detail.real("GRAnchor");
    }
    if (detail.has("ClipData")) {
        axis.clipsData = detail.flag("ClipData");
        axis.valueAtOrigin = detail.real("ValueAtOrigin");
    }
    axis.line = readLine(detail.below("AxisLine"));
    axis.ticks = readTicks(detail.below("Ticks"));
    axis.labels = readLabels(detail.below("TickLabel"));
    axis.title = readTitle(detail.below("Title"), variable);
    axis.grid = readGrid(detail.below("GridLines"));
    axis.minorGrid = readGrid(detail.below("MinorGridLines"));
    return axis;
}

AxisAreaStyle AxisAreaStyle::read(const StyleReader& axes)
{
    AxisAreaStyle area;
    const StyleReader grid = axes.below("GridArea");
    area.isFilled = grid.flag("IsFilled");
    area.fill = grid.color("FillColor");
    area.usesLight = grid.flag("UseLightSourceToFill");
    area.hasBorder = grid.flag("DrawBorder");
    area.borderThickness = grid.real("LineThickness");
    if (grid.has("Color")) {
        area.borderColor = grid.color("Color");
    }
    if (axes.has("PreciseGrid/Include")) {
        const StyleReader precise = axes.below("PreciseGrid");
        area.hasPreciseGrid = precise.flag("Include");
        area.preciseGridColor = precise.color("Color");
        area.preciseGridSize = precise.real("Size");
    }
    if (axes.has("ViewportPosition/X1")) {
        const StyleReader viewport = axes.below("ViewportPosition");
        area.left = viewport.real("X1") / 100.0;
        area.right = viewport.real("X2") / 100.0;
        area.bottom = viewport.real("Y1") / 100.0;
        area.top = viewport.real("Y2") / 100.0;
    }
    if (axes.has("ViewportStyle/IsFilled")) {
        const StyleReader viewport = axes.below("ViewportStyle");
        area.isViewportFilled = viewport.flag("IsFilled");
        area.viewportFill = viewport.color("FillColor");
        area.hasViewportBorder = viewport.flag("DrawBorder");
        area.viewportBorderColor = viewport.color("Color");
        area.viewportBorderThickness = viewport.real("LineThickness");
    }
    return area;
}

} // namespace vantrix::view
