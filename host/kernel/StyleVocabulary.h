#pragma once

#include "api/VtxUtilStyle.h"

#include <array>
#include <span>

namespace vantrix::kernel {

enum class StyleType : unsigned char
{
    Flag,
    Integer,
    Enumeration,
    Double,
    String
};

enum class StyleScope : unsigned char
{
    Process,
    Page,
    Frame
};

/* What a colour index is used for: lines and symbols, which have to stand out from the background, or areas. */
enum class StyleColor : unsigned char
{
    None,
    Foreground,
    Fill
};

/* What an offset counts. `Zone` goes as far as the frame's data set has zones, `Numbered` to `limit`. */
struct StyleOffset
{
    enum class Kind : unsigned char
    {
        None,
        Numbered,
        Zone
    };
    Kind kind;
    long limit;
    const char* name;
};

struct StyleEnumerator
{
    const char* name; /* without the prefix: "Solid" */
    long value;
};

struct StyleEnumeration
{
    const char* name; /* "LinePattern_e" */
    std::span<const StyleEnumerator> enumerators;
};

/* The description of one style value. */
struct StyleEntry
{
    std::array<short, VTX_STYLE_PATH_MAX> path; /* indices into styleNames(), -1 behind the last */
    unsigned char pathLength;
    StyleType type;
    StyleScope scope;
    std::array<unsigned char, 2> offsets; /* see styleOffset() */
    short enumeration;                    /* see styleEnumeration(); -1 for another type */
    double minimum;
    double maximum;
    bool aboveMinimum; /* the minimum itself is not allowed */
    long integerDefault;
    double doubleDefault;
    const char* stringDefault;
    const char* unit; /* "inches"; may be empty */
    StyleColor color;
    int announces; /* StateChange_e that a change sends besides `StateChange_Style`; -1 for none */
};

/*
 * All names of paths and all style values, in alphabetic order; an entry's number is its place. Written from style/ by
 * tools/generate_style.py.
 */
std::span<const char* const> styleNames();
std::span<const StyleEntry> styleVocabulary();

/* The description of an entry that there is. */
inline const StyleEntry& styleDescription(long entry)
{
    return styleVocabulary()[static_cast<std::size_t>(entry)];
}

/* All enumerations of the interface, in alphabetic order. */
std::span<const StyleEnumeration> interfaceEnumerations();

const StyleOffset& styleOffset(int index);
const StyleEnumeration& styleEnumeration(int index);

} // namespace vantrix::kernel
