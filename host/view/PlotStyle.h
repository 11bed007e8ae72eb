#pragma once

#include "api/VtxEnumerations.h"
#include "view/ZoneStyle.h"

#include <QColor>

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

/* How one axis is to look; a copy of the frame's style. */
struct AxisStyle
{
    bool isShown = true;
    bool isLogarithmic = false;
    bool isReversed = false;
    long variable = 0; /* number from 1; 0 where the axis shows no variable */
    double minimum = 0.0;
    double maximum = 1.0;
    double spacing = 0.0; /* of labelled ticks; 0 chooses */
    double anchor = 0.0;
    int minorTicks = -1; /* between two labelled ones; -1 chooses */
    bool hasGridLines = false;
    QColor lineColor = Qt::black;
    QColor labelColor = Qt::black;
    QColor titleColor = Qt::black;
    double labelScale = 1.0; /* of the size that the plot would choose */
    double titleScale = 1.0;
    QColor gridColor = Qt::black; /* drawn faintly */
    std::string title;

    bool operator==(const AxisStyle&) const = default;
};

/* The values that have a colour; what lies beyond is left away. */
struct ColorCutoff
{
    std::optional<double> minimum;
    std::optional<double> maximum;

    bool isActive() const { return minimum || maximum; }
    bool operator==(const ColorCutoff&) const = default;
};

struct ContourGroupStyle
{
    long variable = 0;
    std::vector<double> levels; /* increasing; never empty where the variable has values */
    bool isContinuous = false;
    bool isReversed = false;
    std::string colorMap;
    ColorCutoff cutoff;
    bool hasLegend = true;
    std::string title;

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
    std::array<double, 3> direction{-0.2, 0.2, 0.96}; /* to the light; X to the right, Y up, Z to the viewer */

    bool operator==(const LightStyle&) const = default;
};

struct LineMapStyle
{
    std::string name;
    long zone = 0;
    long xVariable = 0;
    long yVariable = 0;
    QColor color = Qt::black;
    double thickness = 0.4;
    LinePattern_e pattern = LinePattern_Solid;
    bool hasLines = true;
    bool hasSymbols = false;

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
    double borderThickness = 0.1; /* per cent of the frame's height */

    bool operator==(const FrameStyle&) const = default;
};

/* Everything that decides what a frame's plot looks like, read from the style store at once. */
struct PlotStyle
{
    PlotType_e type = PlotType_Sketch;
    std::array<AxisStyle, 3> axes;
    std::array<double, 3> axisScale{1.0, 1.0, 1.0}; /* of a 3D plot: lengths on the screen to lengths in the data */
    View3D view;
    LightStyle light;
    std::vector<ContourGroupStyle> contourGroups; /* group 1 first */
    std::vector<ZoneStyle> zones;
    VectorScaleStyle vectors;
    ScatterScaleStyle scatter;
    std::vector<LineMapStyle> lineMaps;
    bool hasLineLegend = true;
    FrameStyle frame;
    double xToYRatio = 0.0; /* of a flat plot: length of a unit of X to one of Y; 0 where each axis has its own */
    std::array<double, 4> viewport{0.0, 1.0, 0.0,
                                   1.0}; /* left, right, bottom, top of a flat plot; parts of the frame */
    bool isFilled = false;               /* the area between the axes has a fill colour of its own */
    QColor fill = Qt::white;

    bool operator==(const PlotStyle&) const = default;

    static PlotStyle read(const kernel::StyleStore& store, const kernel::Frame& frame);
};

} // namespace vantrix::view
