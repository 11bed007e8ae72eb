#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace vantrix::toolbox {

/// How many colours style values name by number.
inline constexpr int BASIC_COLOR_COUNT = 64;

/// The first one of the rows of hues, and how many a row has.
inline constexpr int FIRST_HUE = 16;
inline constexpr int HUE_COUNT = 12;

/// The colour of a number, as 0xRRGGBB; black for numbers out of range. 0 to 7 are the basic ones (black, red, green,
/// blue, cyan, yellow, purple, white); 8 to 15 greys from dark to light; 16 to 63 twelve hues, 30 degrees apart from
/// red on, in four rows: dark, strong, light and pale.
constexpr std::uint32_t basicColor(long number)
{
    constexpr std::array<std::uint32_t, BASIC_COLOR_COUNT> colors{
        0x000000, 0xff0000, 0x00ff00, 0x0000ff, 0x00ffff, 0xffff00, 0xff00ff, 0xffffff, //
        0x202020, 0x404040, 0x606060, 0x808080, 0xa0a0a0, 0xc0c0c0, 0xe0e0e0, 0xf0f0f0, //
        0x620e0e, 0x62380e, 0x62620e, 0x38620e, 0x0e620e, 0x0e6238, 0x0e6262, 0x0e3862,
        0x0e0e62, 0x380e62, 0x620e62, 0x620e38, //
        0xc61010, 0xc66b10, 0xc6c610, 0x6bc610, 0x10c610, 0x10c66b, 0x10c6c6, 0x106bc6,
        0x1010c6, 0x6b10c6, 0xc610c6, 0xc6106b, //
        0xed5e5e, 0xeda65e, 0xeded5e, 0xa6ed5e, 0x5eed5e, 0x5eeda6, 0x5eeded, 0x5ea6ed,
        0x5e5eed, 0xa65eed, 0xed5eed, 0xed5ea6, //
        0xf6c1c1, 0xf6dbc1, 0xf6f6c1, 0xdbf6c1, 0xc1f6c1, 0xc1f6db, 0xc1f6f6, 0xc1dbf6,
        0xc1c1f6, 0xdbc1f6, 0xf6c1f6, 0xf6c1db};
    return number >= 0 && number < BASIC_COLOR_COUNT ? colors[static_cast<std::size_t>(number)] : colors[0];
}

/// What a colour is called, in English ("Dark orange"); "Black" for numbers out of range.
std::string basicColorName(long number);

} // namespace vantrix::toolbox
