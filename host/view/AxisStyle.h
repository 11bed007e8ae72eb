#pragma once

#include "api/VtxEnumerations.h"
#include "view/NumberText.h"

#include <QColor>

#include <string>

namespace vantrix::view {

class StyleReader;

constexpr double edgePercent = 1.0; /* of the frame's height, kept free around the axes of flat plots */

/* Lengths of all of these are, where nothing else is said, per cent of the frame's height. */

struct TextStyle
{
    Font_e font = Font_Helvetica;
    Units_e units = Units_Frame;
    double height = 2.1; /* in its units */
    QColor color = Qt::black;

    bool operator==(const TextStyle&) const = default;

    /* `frameHeight` in inches, too. Grid units count as those of the frame. */
    double inches(double frameHeight) const;

    /* Font and height of a "TextShape"; the colour stays with its default. */
    static TextStyle read(const StyleReader& shape);
};

/* On which of the lines of an axis something is drawn. */
struct ShownOn
{
    bool axisLine = true;
    bool allAxes = true; /* every line of a polar plot's axis */
    bool gridMinimum = false;
    bool gridMaximum = false;
    bool oppositeEdge = false;

    bool operator==(const ShownOn&) const = default;
};

struct AxisLineStyle
{
    bool isShown = true;
    QColor color = Qt::black;
    double thickness = 0.15;
    AxisAlignment_e alignment = AxisAlignment_GridMin;
    double offset = 0.0;
    double position = 0.0; /* per cent of the viewport */
    double opposingValue = 0.0;
    double angle = 0.0; /* degrees */
    int edge = 0;
    bool hasBothDirections = false;
    bool hasOppositeEdge = false;
    bool hasPerpendicular = false;

    bool operator==(const AxisLineStyle&) const = default;
};

struct TickStyle
{
    ShownOn shownOn;
    double length = 1.2;
    double thickness = 0.15;
    double minorLength = 0.7;
    double minorThickness = 0.1;
    int minorCount = 4;
    TickDirection_e direction = TickDirection_Out;

    bool operator==(const TickStyle&) const = default;
};

struct TickLabelStyle
{
    ShownOn shownOn;
    TextStyle text;
    LabelAlignment_e alignment = LabelAlignment_ByAngle;
    double angle = 0.0; /* degrees */
    double offset = 1.0;
    bool erasesBehind = true;
    bool isAtIntersections = true;
    int skip = 1;
    NumberStyle number;

    bool operator==(const TickLabelStyle&) const = default;
};

struct AxisTitleStyle
{
    ShownOn shownOn;
    TextStyle text;
    double offset = 5.0;
    double percentAlong = 50.0;
    std::string words; /* empty for no title */

    bool operator==(const AxisTitleStyle&) const = default;
};

struct GridLineStyle
{
    bool isShown = false;
    QColor color = Qt::lightGray;
    double thickness = 0.1;
    LinePattern_e pattern = LinePattern_Solid;
    double patternLength = 2.0;
    double cutoff = 5.0; /* per cent of the largest radius */
    bool isLast = false; /* drawn over the data */

    bool operator==(const GridLineStyle&) const = default;
};

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
    bool clipsData = true;      /* of polar axes, like the next */
    double valueAtOrigin = 0.0; /* of R the value at the centre, of theta that on the right */
    AxisLineStyle line;
    TickStyle ticks;
    TickLabelStyle labels;
    AxisTitleStyle title;
    GridLineStyle grid;
    GridLineStyle minorGrid;

    bool operator==(const AxisStyle&) const = default;

    /* Of an axis detail. `variable` is the name that its title shows when it is to. */
    static AxisStyle read(const StyleReader& detail, const std::string& variable);
};

/* The area that the axes span, and where it lies. */
struct AxisAreaStyle
{
    bool isFilled = false;
    QColor fill = Qt::white;
    bool usesLight = false; /* shades the planes of a 3D plot */
    bool hasBorder = true;
    QColor borderColor = Qt::black;
    double borderThickness = 0.1;

    bool hasPreciseGrid = false;
    QColor preciseGridColor = Qt::black;
    double preciseGridSize = 0.0045; /* cm */

    double left = 0.0; /* the viewport: parts of the frame, from its lower left corner */
    double right = 1.0;
    double bottom = 0.0;
    double top = 1.0;
    bool isViewportFilled = false;
    QColor viewportFill = Qt::white;
    bool hasViewportBorder = false;
    QColor viewportBorderColor = Qt::black;
    double viewportBorderThickness = 0.1;

    bool operator==(const AxisAreaStyle&) const = default;

    /* Of the axes of one plot type; what they do not have keeps its default. */
    static AxisAreaStyle read(const StyleReader& axes);
};

} // namespace vantrix::view
