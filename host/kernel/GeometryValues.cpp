#include "kernel/GeometryValues.h"

#include "kernel/DataError.h"

#include <array>

namespace vantrix::kernel {

namespace {

using GeometryMember = ObjectValues<Geometry>;

constexpr std::array geometryValues{
    GeometryMember::between<&Geometry::type>("GeomType", GeomType_Line, GeomType_Ellipse).of("GeomType_e"),
    GeometryMember::between<&Geometry::coordSys>("PositionCoordSys", CoordSys_Grid, CoordSys_Grid3D).of("CoordSys_e"),
    GeometryMember::any<&Geometry::x>("XPos"),
    GeometryMember::any<&Geometry::y>("YPos"),
    GeometryMember::any<&Geometry::z>("ZPos"),
    GeometryMember::any<&Geometry::points>("Points"),
    GeometryMember::positive<&Geometry::width>("Width"),
    GeometryMember::positive<&Geometry::height>("Height"),
    GeometryMember::flag<&Geometry::isClipped>("IsClipped"),
    GeometryMember::color<&Geometry::color>("Color"),
    GeometryMember::flag<&Geometry::isFilled>("IsFilled"),
    GeometryMember::color<&Geometry::fillColor>("FillColor"),
    GeometryMember::between<&Geometry::linePattern>("LinePattern", LinePattern_Solid, LinePattern_DashDotDot)
        .of("LinePattern_e"),
    GeometryMember::positive<&Geometry::patternLength>("PatternLength"),
    GeometryMember::positive<&Geometry::lineThickness>("LineThickness"),
    GeometryMember::between<&Geometry::arrowheadAttachment>("ArrowheadAttachment", ArrowheadAttachment_None,
                                                            ArrowheadAttachment_Both)
        .of("ArrowheadAttachment_e"),
    GeometryMember::between<&Geometry::arrowheadStyle>("ArrowheadStyle", ArrowheadStyle_Plain, ArrowheadStyle_Hollow)
        .of("ArrowheadStyle_e"),
    GeometryMember::positive<&Geometry::arrowheadSize>("ArrowheadSize"),
    GeometryMember::between<&Geometry::arrowheadAngle>("ArrowheadAngle", 1.0, 90.0),
    GeometryMember::any<&Geometry::macroFunctionCommand>("MacroFunctionCommand"),
};

} // namespace

std::span<const ObjectValue<Geometry>> ObjectTraits<Geometry>::values()
{
    return geometryValues;
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
