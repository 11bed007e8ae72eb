#include "kernel/TextValues.h"

#include "kernel/DataError.h"

#include <array>

namespace vantrix::kernel {

namespace {

using TextMember = ObjectValues<Text>;

constexpr std::array textValues{
    TextMember::any<&Text::text>("Text"),
    TextMember::between<&Text::coordSys>("PositionCoordSys", CoordSys_Grid, CoordSys_Grid3D).of("CoordSys_e"),
    TextMember::any<&Text::x>("XPos"),
    TextMember::any<&Text::y>("YPos"),
    TextMember::any<&Text::z>("ZPos"),
    TextMember::any<&Text::fontFamily>("FontFamily"),
    TextMember::between<&Text::sizeUnits>("SizeUnits", Units_Grid, Units_Point).of("Units_e"),
    TextMember::positive<&Text::height>("Height"),
    TextMember::any<&Text::macroFunctionCommand>("MacroFunctionCommand"),
    TextMember::color<&Text::color>("TextColor"),
    TextMember::flag<&Text::isBold>("IsBold"),
    TextMember::flag<&Text::isItalic>("IsItalic"),
    TextMember::between<&Text::angle>("Angle", -360.0, 360.0),
    TextMember::positive<&Text::lineSpacing>("LineSpacing"),
    TextMember::between<&Text::anchor>("Anchor", TextAnchor_BottomLeft, TextAnchor_TopRight).of("TextAnchor_e"),
    TextMember::between<&Text::type>("TextType", TextType_Regular, TextType_LaTeX).of("TextType_e"),
    TextMember::between<&Text::box>("BoxType", TextBox_None, TextBox_Hollow).of("TextBox_e"),
    TextMember::positive<&Text::boxLineThickness>("LineThickness"),
    TextMember::color<&Text::boxColor>("Color"),
    TextMember::color<&Text::boxFillColor>("FillColor"),
    TextMember::between<&Text::boxMargin>("Margin", 0.0, 2000.0),
};

} // namespace

std::span<const ObjectValue<Text>> ObjectTraits<Text>::values()
{
    return textValues;
}

void ObjectTraits<Text>::check(const Text& text)
{
    if (text.text.empty()) {
        throw DataError("\"Text\" of a text has to say something.");
    }
}

} // namespace vantrix::kernel
