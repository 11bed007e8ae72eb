"""Writes the reference page of all style values."""

from .description import Entry, Style

HEAD = """# Style values

Written from `style/` by `tools/generate_style.py`; do not edit. Every style value with its path, type, range, default,
scope, what its offsets count, and what it is for. See `host/api/VtxUtilStyle.h` for how one is read and written.

- **Scope**: `frame` and `page` values belong to the active frame or page, `process` values to the running program.
- **Colours** are indices: 0 black, 1 red, 2 green, 3 blue, 4 cyan, 5 yellow, 6 magenta, 7 white; 8 to 63 as
  [Palette.h](../host/kernel/Palette.h) lists them. Where the range ends at 71, 64 to 71 colour by contour group 1 to 8.
- **Variables** are numbers from 1; 0 stands for none.
"""


def shown(value: object) -> str:
    if isinstance(value, bool):
        return "true" if value else "false"
    return f'"{value}"' if isinstance(value, str) else f"{value:g}" if isinstance(value, float) else str(value)


def type_text(style: Style, entry: Entry) -> str:
    member = entry.member
    if member.type in style.enumerations:
        return f"`{member.type}`"
    if member.type in ("bool", "string"):
        return member.type
    low, high = member.minimum, member.maximum
    whole = {"color": "color", "fill_color": "color", "contour_color": "color"}.get(member.type, member.type)
    if member.type == "variable" or (member.type in ("int", "long") and high is not None and high >= 2**31 - 1):
        high = None
    if low is not None and low <= -(2**31):
        low = None
    start = "" if low is None else f"above {low:g}" if member.above else f"from {low:g}"
    end = "" if high is None else f"to {high:g}"
    return " ".join(part for part in (whole, start, end, member.unit) if part)


def row(style: Style, entry: Entry) -> str:
    member = entry.member
    default = member.default if member.type in style.enumerations else shown(member.default)
    offsets = ", ".join(offset.name.replace("_", " ") for offset in entry.offsets)
    path = "/".join(entry.path)
    return f"| `{path}` | {type_text(style, entry)} | {default} | {entry.scope} | {offsets} | {member.help} |"


def write(style: Style) -> str:
    lines = [HEAD, "## Offsets", "", "| Offset | Numbers | Counts |", "|---|---|---|"]
    for offset in style.offsets.values():
        numbers = f"1 to {offset.limit}" if offset.limit else "1 to the number of zones"
        lines.append(f"| {offset.name.replace('_', ' ')} | {numbers} | {offset.help} |")
    for stem, text in style.helps.items():
        entries = [entry for entry in style.entries if entry.file == stem + ".toml"]
        if not entries:
            continue
        lines += ["", f"## {stem.replace('_', ' ').capitalize()}", "", text, ""]
        lines += ["| Path | Type and range | Default | Scope | Offsets | |", "|---|---|---|---|---|---|"]
        lines += [row(style, entry) for entry in entries]
    lines.append("")
    return "\n".join(lines)
