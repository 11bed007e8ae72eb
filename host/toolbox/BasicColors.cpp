#include "toolbox/BasicColors.h"

#include <array>

namespace vantrix::toolbox {

namespace {

struct Color
{
    std::uint32_t rgb;
    char const* name;
};

constexpr std::array<Color, BASIC_COLOR_COUNT> COLORS{{
    {0x000000, "Black"},
    {0xff0000, "Red"},
    {0x00c000, "Green"},
    {0x0000ff, "Blue"},
    {0x00c8d8, "Cyan"},
    {0xffd800, "Yellow"},
    {0xa000c8, "Purple"},
    {0xffffff, "White"},
    {0x4c566a, "Slate"},
    {0xc8d2dc, "Silver"},
    {0x9fb4c7, "Mist blue"},
    {0xd9a066, "Sand"},
    {0x7fa86f, "Moss green"},
    {0x8f6fa8, "Lavender"},
    {0xb05c5c, "Brick red"},
    {0x5c8bb0, "Steel blue"},
}};

Color const& colorOf(long number)
{
    return COLORS[number >= 0 && number < BASIC_COLOR_COUNT ? static_cast<std::size_t>(number) : 0];
}

} // namespace

std::uint32_t basicColor(long number)
{
    return colorOf(number).rgb;
}

char const* basicColorName(long number)
{
    return colorOf(number).name;
}

} // namespace vantrix::toolbox
