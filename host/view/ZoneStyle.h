#pragma once

#include "api/VtxEnumerations.h"

#include <QColor>

#include <array>
#include <string>

namespace vantrix::view {

class StyleReader;

/* A colour of a layer: one of the palette, or those of a contour group. */
struct LayerColor
{
    QColor color = Qt::black;
    long contourGroup = 0; /* from 1; 0 for the colour alone */

    bool operator==(const LayerColor&) const = default;

    /* The colour, or contour group, that a number of the style stands for. */
    static LayerColor read(const StyleReader& style, const char* key = "Color");
};

/* A shape, or a character in place of it. */
struct SymbolStyle
{
    GeomShape_e shape = GeomShape_Circle;
    std::string character; /* empty for the shape */
    Font_e font = Font_Helvetica;
    QColor color = Qt::black;
    bool isFilled = false;
    QColor fill = Qt::black;
    double size = 2.5;      /* like all lengths here per cent of the frame's height */
    double thickness = 0.1; /* of its outline */

    bool operator==(const SymbolStyle&) const = default;

    /* Shape, or character and font; the rest stays with its default. */
    static SymbolStyle read(const StyleReader& shape);
};

/* Some indices of an ordered zone, from 1; `last` 0 stands for the zone's last.
 */
struct IndexRange
{
    long first = 1;
    long last = 0;
    long skip = 1;

    bool operator==(const IndexRange&) const = default;
};

/* Which faces of a volume zone are drawn; zones of surfaces and curves draw what they have. */
struct SurfaceSelection
{
    SurfacesToPlot_e faces = SurfacesToPlot_BoundaryFaces;
    std::array<IndexRange, 3> planes;

    bool operator==(const SurfaceSelection&) const = default;
};

/* Where a zone has symbols and vectors. */
struct PointSelection
{
    PointsToPlot_e points = PointsToPlot_SurfaceNodes;
    std::array<long, 3> skip{1, 1, 1};

    bool operator==(const PointSelection&) const = default;
};

/* Thicknesses and sizes are per cent of the frame's height. A layer is shown when its frame shows that layer, too. */
struct MeshStyle
{
    bool isShown = false;
    MeshType_e type = MeshType_Overlay;
    LayerColor color;
    double thickness = 0.1;
    LinePattern_e pattern = LinePattern_Solid;
    double patternLength = 2.0;

    bool operator==(const MeshStyle&) const = default;
};

struct ContourStyle
{
    bool isShown = false;
    ContourType_e type = ContourType_Flood;
    long floodGroup = 1; /* 0 floods by three variables, see RgbStyle */
    long lineGroup = 1;
    LayerColor lineColor;
    double thickness = 0.1;
    bool isLit = true;
    LinePattern_e pattern = LinePattern_Solid;
    double patternLength = 2.0;

    bool hasFlood() const { return isShown && type != ContourType_Lines; }
    bool isFloodedByRgb() const { return hasFlood() && floodGroup == 0; }
    bool hasLines() const { return isShown && (type == ContourType_Lines || type == ContourType_LinesAndFlood); }
    bool operator==(const ContourStyle&) const = default;
};

struct VectorStyle
{
    bool isShown = false;
    VectorType_e type = VectorType_TailAtPoint;
    ArrowheadStyle_e head = ArrowheadStyle_Plain;
    bool isTangent = false;
    LayerColor color;
    double thickness = 0.1;

    bool operator==(const VectorStyle&) const = default;
};

struct ScatterStyle
{
    bool isShown = false;
    GeomShape_e shape = GeomShape_Circle;
    std::string character; /* drawn in place of the shape; empty for the shape */
    Font_e font = Font_Helvetica;
    LayerColor color;
    bool isFilled = true;
    LayerColor fill;
    bool isSizedByVariable = false;
    double size = 1.5;
    double thickness = 0.1;

    /* One symbol as a legend has it; contour groups do not count. */
    SymbolStyle symbol() const { return {shape, character, font, color.color, isFilled, fill.color, size, thickness}; }

    bool operator==(const ScatterStyle&) const = default;
};

struct ShadeStyle
{
    bool isShown = false;
    QColor color = Qt::lightGray;
    bool isLit = true;

    bool operator==(const ShadeStyle&) const = default;
};

struct EdgeStyle
{
    bool isShown = false;
    EdgeType_e type = EdgeType_BordersAndCreases;
    QColor color = Qt::black;
    double thickness = 0.2;

    bool operator==(const EdgeStyle&) const = default;
};

/* The layers of one zone, already combined with the layers of the frame: what is not shown is not drawn. */
struct ZoneStyle
{
    long zone = 0;
    std::string name;
    MeshStyle mesh;
    ContourStyle contour;
    VectorStyle vector;
    ScatterStyle scatter;
    ShadeStyle shade;
    EdgeStyle edge;
    SurfaceSelection surfaces;
    PointSelection points;
    LightingEffect_e lighting = LightingEffect_Gouraud;
    double opacity = 1.0;

    bool operator==(const ZoneStyle&) const = default;

    /* `map` reads below the zone's own style, `layers` below that of the frame's layers. */
    static ZoneStyle read(const StyleReader& map, const StyleReader& layers, long zone);
};

/* The vectors of a frame. Lengths are per cent of the diagonal of the axes' area (2D) or box (3D). */
struct VectorScaleStyle
{
    std::array<long, 3> variables{}; /* along X, Y and Z; 0 for none */
    bool isRelative = true;
    double relativeLength = 0.0; /* of a vector of size 1; 0 lets the plot choose */
    double uniformLength = 2.0;
    double headFraction = 0.2;
    double headAngle = 18.0;

    bool operator==(const VectorScaleStyle&) const = default;

    static VectorScaleStyle read(const StyleReader& frame);
};

/* What mixes red, green and blue. */
struct RgbStyle
{
    std::array<long, 3> variables{}; /* of red, green and blue; 0 for none */
    double minimum = 0.0;            /* has none of a colour */
    double maximum = 1.0;            /* has all of it; equal to the minimum, what lies above has all */

    bool operator==(const RgbStyle&) const = default;

    static RgbStyle read(const StyleReader& frame);
};

/* What sizes symbols that are sized by a variable. */
struct ScatterScaleStyle
{
    long variable = 0;
    double relativeSize = 1.0; /* of a value of 1, in per cent of the frame's height */

    bool operator==(const ScatterScaleStyle&) const = default;

    static ScatterScaleStyle read(const StyleReader& frame);
};

} // namespace vantrix::view
