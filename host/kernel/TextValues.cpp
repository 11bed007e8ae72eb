#include "kernel/TextValues.h"

#include "kernel/DataError.h"

#include <array>

namespace vantrix::kernel {

namespace {

using Values = ObjectValues<Text>;

constexpr std::array values{
    Values::any<&Text::text>("Text"),
    Values::between<&Text::coordSys>("PositionCoordSys", CoordSys_Grid, CoordSys_Grid3D),
    Values::any<&Text::x>("XPos"),
    Values::any<&Text::y>("YPos"),
    Values::any<&Text::z>("ZPos"),
    Values::any<&Text::fontFamily>("FontFamily"),
    Values::between<&Text::sizeUnits>("SizeUnits", Units_Grid, Units_Point),
    Values::positive<&Text::height>("Height"),
    Values::any<&Text::macroFunctionCommand>("MacroFunctionCommand"),
    Values::color<&Text::color>("TextColor"),
    Values::flag<&Text::isBold>("IsBold"),
    Values::flag<&Text::isItalic>("IsItalic"),
    Values::between<&Text::angle>("Angle", -360.0, 360.0),
    Values::positive<&Text::lineSpacing>("LineSpacing"),
    Values::between<&Text::anchor>("Anchor", TextAnchor_BottomLeft, TextAnchor_TopRight),
    Values::between<&Text::type>("TextType", TextType_Regular, TextType_LaTeX),
    Values::between<&Text::box>("BoxType", TextBox_None, TextBox_Hollow),
    Values::positive<&Text::boxLineThickness>("LineThickness"),
    Values::color<&Text::boxColor>("Color"),
    Values::color<&Text::boxFillColor>("FillColor"),
    Values::between<&Text::boxMargin>("Margin", 0.0, 2000.0),
};

} // namespace

std::span<const ObjectValue<Text>> ObjectTraits<Text>::values()
{
    return kernel::values;
}

void ObjectTraits<Text>::check(const Text& text)
{
    if (text.text.empty()) {
        throw DataError("\"Text\" of a text has to say something.");
    }
}

} // namespace vantrix::kernel
