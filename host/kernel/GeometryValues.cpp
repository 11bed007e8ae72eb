#include "kernel/GeometryValues.h"

#include "kernel/DataError.h"

#include <array>

namespace vantrix::kernel {

namespace {

using Values = ObjectValues<Geometry>;

constexpr std::array values{
    Values::between<&Geometry::type>("GeomType", GeomType_Line, GeomType_Ellipse),
    Values::between<&Geometry::coordSys>("PositionCoordSys", CoordSys_Grid, CoordSys_Grid3D),
    Values::any<&Geometry::x>("XPos"),
    Values::any<&Geometry::y>("YPos"),
    Values::any<&Geometry::z>("ZPos"),
    Values::any<&Geometry::points>("Points"),
    Values::positive<&Geometry::width>("Width"),
    Values::positive<&Geometry::height>("Height"),
    Values::flag<&Geometry::isClipped>("IsClipped"),
    Values::color<&Geometry::color>("Color"),
    Values::flag<&Geometry::isFilled>("IsFilled"),
    Values::color<&Geometry::fillColor>("FillColor"),
    Values::between<&Geometry::linePattern>("LinePattern", LinePattern_Solid, LinePattern_DashDotDot),
    Values::positive<&Geometry::patternLength>("PatternLength"),
    Values::positive<&Geometry::lineThickness>("LineThickness"),
    Values::between<&Geometry::arrowheadAttachment>("ArrowheadAttachment", ArrowheadAttachment_None,
                                                    ArrowheadAttachment_Both),
    Values::between<&Geometry::arrowheadStyle>("ArrowheadStyle", ArrowheadStyle_Plain, ArrowheadStyle_Hollow),
    Values::positive<&Geometry::arrowheadSize>("ArrowheadSize"),
    Values::between<&Geometry::arrowheadAngle>("ArrowheadAngle", 1.0, 90.0),
    Values::any<&Geometry::macroFunctionCommand>("MacroFunctionCommand"),
};

} // namespace

std::span<const ObjectValue<Geometry>> ObjectTraits<Geometry>::values()
{
    return kernel::values;
}

void ObjectTraits<Geometry>::check(const Geometry& geometry)
{
    if (geometry.type == GeomType_Line) {
        parseGeometryPoints(geometry.points);
    } else if (geometry.coordSys == CoordSys_Grid3D) {
        throw DataError("\"GeomType\" of a geometry in 3D coordinates has to be 0, a line.");
    }
}

} // namespace vantrix::kernel
