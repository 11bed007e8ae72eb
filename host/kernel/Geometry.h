#pragma once

#include "api/VtxUtilGeometry.h"

#include <array>
#include <string>
#include <vector>

namespace vantrix::kernel {

/* A geometry of a frame; see VtxUtilGeometrySetX() for what the values mean. */
struct Geometry
{
    long handle = 0;
    GeomType_e type = GeomType_Line;
    CoordSys_e coordSys = CoordSys_Frame;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    std::string points;
    double width = 10.0;
    double height = 10.0;
    bool isClipped = false;
    long color = 0;
    bool isFilled = false;
    long fillColor = 7;
    LinePattern_e linePattern = LinePattern_Solid;
    double patternLength = 2.0;
    double lineThickness = 0.1;
    ArrowheadAttachment_e arrowheadAttachment = ArrowheadAttachment_None;
    ArrowheadStyle_e arrowheadStyle = ArrowheadStyle_Plain;
    double arrowheadSize = 5.0;
    double arrowheadAngle = 12.0;
    std::string macroFunctionCommand;

    bool operator==(const Geometry&) const = default;
};

/* Whether a geometry is a square or circle, which have no height of their own. */
inline bool isAsHighAsWide(GeomType_e type)
{
    return type == GeomType_Square || type == GeomType_Circle;
}

/* The points of lines, relative to the geometry's place. */
using GeometryPoint = std::array<double, 3>;
using GeometryLines = std::vector<std::vector<GeometryPoint>>;

/* Throws DataError that tells what is wrong with a text of points, and what would be right. */
GeometryLines parseGeometryPoints(const std::string& points);

std::string geometryPointsText(const GeometryLines& lines);

} // namespace vantrix::kernel
