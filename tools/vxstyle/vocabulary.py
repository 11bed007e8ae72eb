"""Writes the kernel's table of all style values (declared in host/kernel/StyleVocabulary.h)."""

import json

from .description import INTEGER_TYPES, PATH_MAX, Entry, Style


def quoted(text: str) -> str:
    return json.dumps(text, ensure_ascii=False)


def value_type(style: Style, entry: Entry) -> str:
    kind = entry.member.type
    if kind in style.enumerations:
        return "Enumeration"
    return {"bool": "Flag", "double": "Double", "string": "String"}.get(kind, "Integer")


def number(value: float | None, fallback: str) -> str:
    return fallback if value is None else repr(float(value))


def default_values(style: Style, entry: Entry) -> tuple[str, str, str]:
    """The default as a whole number, as a double and as a text."""
    value, kind = entry.member.default, entry.member.type
    if kind in style.enumerations:
        return str(style.enumerations[kind].enumerators[value]), "0.0", '""'
    if kind == "string":
        return "0", "0.0", quoted(value)
    if kind == "double":
        return "0", repr(float(value)), '""'
    return str(int(value)), "0.0", '""'


def write_entry(style: Style, entry: Entry, names: dict[str, int], offsets: dict[str, int], enums: dict[str, int]) -> str:
    member = entry.member
    path = [names[name] for name in entry.path] + [-1] * (PATH_MAX - len(entry.path))
    indices = [offsets[offset.name] for offset in entry.offsets] + [0] * (2 - len(entry.offsets))
    is_enumeration = member.type in style.enumerations
    integer, double, text = default_values(style, entry)
    kind = value_type(style, entry)
    bounds = (number(member.minimum, "-noLimit"), number(member.maximum, "noLimit"))
    color = {"color": "Foreground", "contour_color": "Foreground", "fill_color": "Fill"}.get(member.type, "None")
    announces = style.enumerations["StateChange_e"].enumerators[member.announces] if member.announces else -1
    fields = [
        "{" + ", ".join(map(str, path)) + "}",
        str(len(entry.path)),
        f"StyleType::{kind}",
        f"StyleScope::{entry.scope.capitalize()}",
        "{" + ", ".join(map(str, indices)) + "}",
        str(enums[member.type]) if is_enumeration else "-1",
        *bounds,
        "true" if member.above else "false",
        integer,
        double,
        text,
        quoted(member.unit),
        f"StyleColor::{color}",
        str(announces),
    ]
    return f"    {{{', '.join(fields)}}}, // {'/'.join(entry.path)}"


def write(style: Style) -> str:
    names = sorted({name for entry in style.entries for name in entry.path})
    offsets = list(style.offsets.values())
    numbers = {name: i for i, name in enumerate(names)}
    offset_numbers = {offset.name: i + 1 for i, offset in enumerate(offsets)}
    enums = sorted(style.enumerations)
    enum_numbers = {name: i for i, name in enumerate(enums)}
    lines = [
        "/* Written from style/ by tools/generate_style.py. Do not edit. */",
        '#include "kernel/StyleVocabulary.h"',
        "",
        "#include <limits>",
        "",
        "namespace vantrix::kernel {",
        "",
        "namespace {",
        "",
        "[[maybe_unused]] constexpr double noLimit = std::numeric_limits<double>::max();",
        "",
        "constexpr const char* names[] = {",
        *(f"    {quoted(name)}," for name in names),
        "};",
        "",
    ]
    for name in enums:
        enumeration = style.enumerations[name]
        lines.append(f"constexpr StyleEnumerator {name}numerators[] = {{")
        lines += [f"    {{{quoted(key)}, {value}}}," for key, value in enumeration.enumerators.items()]
        lines += ["};", ""]
    lines.append("constexpr StyleEnumeration enumerations[] = {")
    lines += [f"    {{{quoted(name)}, {name}numerators}}," for name in enums] or ['    {"", {}},']
    lines += ["};", "", "constexpr StyleOffset offsets[] = {", '    {StyleOffset::Kind::None, 0, ""},']
    for offset in offsets:
        kind = "Numbered" if offset.limit else "Zone"
        lines.append(f"    {{StyleOffset::Kind::{kind}, {offset.limit or 0}, {quoted(offset.name)}}},")
    lines += ["};", "", "constexpr StyleEntry entries[] = {"]
    lines += [write_entry(style, entry, numbers, offset_numbers, enum_numbers) for entry in style.entries]
    lines += [
        "};",
        "",
        "} // namespace",
        "",
        "std::span<const char* const> styleNames()",
        "{",
        "    return names;",
        "}",
        "",
        "std::span<const StyleEntry> styleVocabulary()",
        "{",
        "    return entries;",
        "}",
        "",
        "const StyleOffset& styleOffset(int index)",
        "{",
        "    return offsets[index];",
        "}",
        "",
        "std::span<const StyleEnumeration> interfaceEnumerations()",
        "{",
        "    return enumerations;",
        "}",
        "",
        "const StyleEnumeration& styleEnumeration(int index)",
        "{",
        "    return enumerations[index];",
        "}",
        "",
        "} // namespace vantrix::kernel",
        "",
    ]
    return "\n".join(lines)
