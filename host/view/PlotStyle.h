#pragma once

#include "kernel/ValueBlanking.h"
#include "view/AxisStyle.h"
#include "view/StreamtraceStyle.h"
#include "view/ZoneStyle.h"

#include <QColor>
#include <QPointF>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace vantrix::kernel {
class DataSet;
class Frame;
class StyleStore;
} // namespace vantrix::kernel

namespace vantrix::view {

/* An axis of an XY line plot besides the first of its kind. */
struct NumberedAxis
{
    std::size_t kind = 0; /* 0 X, 1 Y */
    int number = 2;
    AxisStyle style;

    bool operator==(const NumberedAxis&) const = default;
};

/* The values that have a colour; what lies beyond is left away. */
struct ColorCutoff
{
    std::optional<double> minimum;
    std::optional<double> maximum;

    bool isActive() const { return minimum || maximum; }
    bool operator==(const ColorCutoff&) const = default;
};

/* A legend: where its anchor lies, its text and its box. */
struct LegendStyle
{
    bool isShown = false;
    bool isPlaced = false; /* by the user; else the plot makes room for it */
    QPointF position;      /* of the anchor: parts of the frame, from its lower left
                              corner */
    AnchorAlignment_e anchor = AnchorAlignment_TopRight;
    TextStyle text;
    double rowSpacing = 1.2; /* text heights */
    bool hasNames = true;
    TextBox_e box = TextBox_Hollow;
    QColor boxColor = Qt::black;
    QColor boxFill = Qt::white;
    double boxThickness = 0.1;
    double boxMargin = 10.0; /* per cent of the text's height */

    bool operator==(const LegendStyle&) const = default;
};

/* The numbers along contour lines. */
struct ContourLabelStyle
{
    bool isShown = false;
    TextStyle text;
    bool isFilled = true;
    QColor fill = Qt::white;
    int skip = 1; /* every how many levels have labels */

    bool operator==(const ContourLabelStyle&) const = default;
};

struct ContourGroupStyle
{
    long variable = 0;
    std::vector<double> levels; /* increasing; never empty where the variable has values */
    bool isContinuous = false;
    bool isReversed = false;
    std::string colorMap;
    ColorCutoff cutoff;
    LegendStyle legend;
    bool isLegendUpright = true;
    int legendLabelSkip = 1; /* every how many levels the legend has a number */
    std::string title;       /* of the legend; may be empty */
    ContourLabelStyle labels;

    bool operator==(const ContourGroupStyle&) const = default;
};

/*
 * From where a 3D plot is seen: `psi` is the angle from the Z axis to the direction of the eye, `theta` the direction's
 * angle about Z, counted from X towards Y; `alpha` turns the picture. Angles in degrees.
 */
struct View3D
{
    double psi = 60.0;
    double theta = 240.0;
    double alpha = 0.0;
    double width = 0.0; /* in world units, of what fills the picture's width; 0 fits the plot into the picture */
    std::array<double, 3> position{}; /* of the eye, in the coordinates of the data; of no meaning while fitted */
    bool isPerspective = false;
    double fieldOfView = 30.0;

    bool operator==(const View3D&) const = default;
};

/* The light on surfaces of a 3D plot; strengths are 0 to 1. */
struct LightStyle
{
    double background = 0.3;
    double intensity = 0.75;
    bool hasHighlights = true;
    double highlight = 0.4;
    double shininess = 60.0;                          /* 0 to 100 */
    double colorContrast = 1.0;                       /* how much of its own colour a lit surface keeps */
    bool forcesGouraud = false;                       /* flooded surfaces are shaded smoothly, whatever
                                                         their zone says */
    bool forcesPanels = false;                        /* or cell by cell; smoothly where both are asked for */
    std::array<double, 3> direction{-0.2, 0.2, 0.96}; /* to the light; X to the right, Y up, Z to the viewer */

    bool operator==(const LightStyle&) const = default;
};

struct LineMapStyle
{
    long number = 0;
    std::string name;
    long zone = 0;
    long xVariable = 0;
    long yVariable = 0;
    int xAxis = 1;
    int yAxis = 1;
    bool hasLines = true;
    QColor color = Qt::black;
    double thickness = 0.4;
    LinePattern_e pattern = LinePattern_Solid;
    double patternLength = 2.0;
    bool hasSymbols = false;
    SymbolStyle symbol;
    long skip = 1; /* every how many points have a symbol */

    bool operator==(const LineMapStyle&) const = default;
};

/* The frame around the plot. */
struct FrameStyle
{
    std::string name;
    bool hasBorder = true;
    bool hasHeader = false;
    bool isTransparent = false;
    QColor background = Qt::white;
    QColor header = Qt::red;
    Font_e headerFont = Font_HelveticaBold;
    double borderThickness = 0.1; /* per cent of the frame's height */

    bool operator==(const FrameStyle&) const = default;
};

/* The small axes that tell how a 3D plot is turned. */
struct TripodStyle
{
    bool isShown = false;
    double size = 8.0; /* per cent of the frame's height */
    QColor color = Qt::black;
    QPointF position; /* parts of the frame, from its lower left corner */

    bool operator==(const TripodStyle&) const = default;
};

/* The line where a constraint of value blanking begins to hold. Lengths are per
 * cent of the frame's height. */
struct BlankingBoundaryStyle
{
    kernel::BlankingConstraint constraint;
    QColor color = Qt::black;
    LinePattern_e pattern = LinePattern_Solid;
    double patternLength = 2.0;
    double thickness = 0.4;

    bool operator==(const BlankingBoundaryStyle&) const = default;
};

/* Everything that decides what a frame's plot looks like, read from the style store at once. */
struct PlotStyle
{
    PlotType_e type = PlotType_Sketch;
    std::array<AxisStyle, 3> axes;                  /* X, Y, Z; of a line plot X1 and Y1; theta and R of a polar one */
    std::vector<NumberedAxis> moreAxes;             /* of an XY line plot, those that are used */
    std::array<double, 3> axisScale{1.0, 1.0, 1.0}; /* of a 3D plot: lengths on the screen to lengths in the data */
    View3D view;
    LightStyle light;
    std::vector<ContourGroupStyle> contourGroups; /* group 1 first */
    std::vector<ZoneStyle> zones;
    RgbStyle rgb;
    VectorScaleStyle vectors;
    ScatterScaleStyle scatter;
    LegendStyle scatterLegend;
    StreamtraceStyle streamtraces;
    std::vector<LineMapStyle> lineMaps;
    LegendStyle lineLegend;
    FrameStyle frame;
    AxisAreaStyle area;
    double xToYRatio = 0.0; /* of a flat plot: length of a unit of X to one of Y; 0 where each axis has its own */
    bool keepsAxisLengths =
        false;                  /* where that makes it necessary, ranges are widened and the area is not made smaller */
    double thetaPeriod = 360.0; /* of a polar plot: theta of one full circle */
    bool resetsEdges = true;    /* of a 3D plot: its axes choose their edges anew when it is turned */
    double boxPadding = 0.0;    /* of a 3D plot: space between data and box, as part of the range */
    TripodStyle tripod;
    kernel::ValueBlanking blanking;
    std::vector<BlankingBoundaryStyle> blankingBoundaries; /* of a flat field plot */

    bool operator==(const PlotStyle&) const = default;

    /* Of a 3D plot: a coordinate of the data is in the world at scale times its value plus shift. A reversed axis runs
     * the other way through the same part of the world. */
    std::array<double, 3> worldScale() const;
    std::array<double, 3> worldShift() const;

    static PlotStyle read(const kernel::StyleStore& store, const kernel::Frame& frame);
};

} // namespace vantrix::view
