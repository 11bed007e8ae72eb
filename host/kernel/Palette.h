#pragma once

#include <array>
#include <cstddef>

namespace vantrix::kernel {

struct RgbColor
{
    unsigned char red;
    unsigned char green;
    unsigned char blue;
};

inline constexpr long paletteSize = 64;

/*
 * The colours of colour indices: 0 to 7 the basic ones; 8 to 15 greys from dark to light;
 * 16 to 63 twelve hues (red, orange, yellow, ... , rose, 30 degrees apart) in four rows: dark, strong, light and pale.
 */
inline constexpr std::array<RgbColor, paletteSize> palette{{
    {0, 0, 0},       {255, 0, 0},     {0, 255, 0},     {0, 0, 255},     {0, 255, 255},   {255, 255, 0},
    {255, 0, 255},   {255, 255, 255}, {32, 32, 32},    {64, 64, 64},    {96, 96, 96},    {128, 128, 128},
    {160, 160, 160}, {192, 192, 192}, {224, 224, 224}, {240, 240, 240}, {98, 14, 14},    {98, 56, 14},
    {98, 98, 14},    {56, 98, 14},    {14, 98, 14},    {14, 98, 56},    {14, 98, 98},    {14, 56, 98},
    {14, 14, 98},    {56, 14, 98},    {98, 14, 98},    {98, 14, 56},    {198, 16, 16},   {198, 107, 16},
    {198, 198, 16},  {107, 198, 16},  {16, 198, 16},   {16, 198, 107},  {16, 198, 198},  {16, 107, 198},
    {16, 16, 198},   {107, 16, 198},  {198, 16, 198},  {198, 16, 107},  {237, 94, 94},   {237, 166, 94},
    {237, 237, 94},  {166, 237, 94},  {94, 237, 94},   {94, 237, 166},  {94, 237, 237},  {94, 166, 237},
    {94, 94, 237},   {166, 94, 237},  {237, 94, 237},  {237, 94, 166},  {246, 193, 193}, {246, 219, 193},
    {246, 246, 193}, {219, 246, 193}, {193, 246, 193}, {193, 246, 219}, {193, 246, 246}, {193, 219, 246},
    {193, 193, 246}, {219, 193, 246}, {246, 193, 246}, {246, 193, 219},
}};

/* The colour of an index; black for one out of range. */
constexpr RgbColor paletteColor(long index)
{
    return index >= 0 && index < paletteSize ? palette[static_cast<std::size_t>(index)] : palette[0];
}

} // namespace vantrix::kernel
