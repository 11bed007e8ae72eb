/* Written from style/ by tools/generate_style.py. Do not edit. */
#include "kernel/StyleVocabulary.h"

#include <limits>

namespace vantrix::kernel {

namespace {

[[maybe_unused]] constexpr double noLimit = std::numeric_limits<double>::max();

constexpr const char* names[] = {
    "Axis",
    "Color",
    "Grid",
    "Mesh",
    "Pattern",
    "Pos",
    "Thickness",
    "Title",
    "X",
    "Zone",
};

constexpr StyleEnumerator LinePattern_enumerators[] = {
    {"Solid", 0},
    {"Dashed", 1},
};

constexpr StyleEnumerator StateChange_enumerators[] = {
    {"Style", 7},
    {"View", 20},
};

constexpr StyleEnumeration enumerations[] = {
    {"LinePattern_e", LinePattern_enumerators},
    {"StateChange_e", StateChange_enumerators},
};

constexpr StyleOffset offsets[] = {
    {StyleOffset::Kind::None, 0, ""},
    {StyleOffset::Kind::Numbered, 5, "axis"},
    {StyleOffset::Kind::Zone, 0, "zone"},
};

constexpr StyleEntry entries[] = {
    {{0, 2, 1, -1, -1, -1, -1}, 3, StyleType::Integer, StyleScope::Frame, {1, 0}, -1, 0.0, 63.0, false, 1, 0.0, "", "", StyleColor::Foreground, 20}, // Axis/Grid/Color
    {{0, 2, 4, -1, -1, -1, -1}, 3, StyleType::Enumeration, StyleScope::Frame, {1, 0}, 0, -noLimit, noLimit, false, 1, 0.0, "", "", StyleColor::None, 20}, // Axis/Grid/Pattern
    {{0, 2, 6, -1, -1, -1, -1}, 3, StyleType::Double, StyleScope::Frame, {1, 0}, -1, 0.0, 100.0, true, 0, 0.1, "", "%", StyleColor::None, 20}, // Axis/Grid/Thickness
    {{0, 5, 8, -1, -1, -1, -1}, 3, StyleType::Integer, StyleScope::Frame, {0, 0}, -1, -9.223372036854776e+18, 9.223372036854776e+18, false, -3, 0.0, "", "", StyleColor::None, -1}, // Axis/Pos/X
    {{0, 7, -1, -1, -1, -1, -1}, 2, StyleType::String, StyleScope::Frame, {0, 0}, -1, -noLimit, noLimit, false, 0, 0.0, "a \"quoted\" title", "", StyleColor::None, -1}, // Axis/Title
    {{1, -1, -1, -1, -1, -1, -1}, 1, StyleType::Integer, StyleScope::Process, {0, 0}, -1, 0.0, 63.0, false, 0, 0.0, "", "", StyleColor::Foreground, -1}, // Color
    {{4, -1, -1, -1, -1, -1, -1}, 1, StyleType::Enumeration, StyleScope::Process, {0, 0}, 0, -noLimit, noLimit, false, 0, 0.0, "", "", StyleColor::None, -1}, // Pattern
    {{9, 3, 1, -1, -1, -1, -1}, 3, StyleType::Integer, StyleScope::Frame, {2, 0}, -1, 0.0, 63.0, false, 7, 0.0, "", "", StyleColor::Foreground, -1}, // Zone/Mesh/Color
    {{9, 3, 4, -1, -1, -1, -1}, 3, StyleType::Enumeration, StyleScope::Frame, {2, 0}, 0, -noLimit, noLimit, false, 0, 0.0, "", "", StyleColor::None, -1}, // Zone/Mesh/Pattern
};

} // namespace

std::span<const char* const> styleNames()
{
    return names;
}

std::span<const StyleEntry> styleVocabulary()
{
    return entries;
}

const StyleOffset& styleOffset(int index)
{
    return offsets[index];
}

std::span<const StyleEnumeration> interfaceEnumerations()
{
    return enumerations;
}

const StyleEnumeration& styleEnumeration(int index)
{
    return enumerations[index];
}

} // namespace vantrix::kernel
