"""Loads and checks the style descriptions.

style/*.toml hold four kinds of tables:

    [offset.NAME]  what an offset counts: `limit` (the highest number) or `count = "zones"`, `help`
    [node.NAME]    values that belong together: `help`, `members`, optionally `base` (a node whose members come first; a
                   member with the same key replaces the base's), `set = true` when a property set is written for it, and
                   `ui = true` when the set holds its values as UI style properties, which have a visible and a
                   sensitive state of their own
    [set.NAME]     a property set of values from several places, see sets.py
    [[place]]      where nodes stand in the style: `path`, `node`, `scope` (process, page, frame), optionally `offset`

A member of a node is one table:

    key      the last names of the path, with "/" between two
    type     bool, int, long, double, string, color (0..63), fill_color (the same, of an area), contour_color (0..71: also
             "by contour group 1..8"), variable (0 for none), or an enumeration of the interface
    default  of the type; an enumerator's name without the prefix
    min, max, above   numbers only: the smallest and largest value, or what it has to be above
    unit, help
    announces         kind of state change, without prefix, that a change sends besides `Style`
    offset            what the (next) offset of the path counts
    node              in place of `type`: the member is a node of that name. `announces` then holds for all values below,
                      and `defaults` gives some of them another default: { Show = false, "Box/Color" = 1 }
    name              of the getter in the property set; with a capital "get" is put in front. The key where it is left out
    set = false       the member is no part of the property set
    ui = false        the value is a plain kernel property in a set of UI style properties

`defaults` may stand at a place, too.
"""

import math
import re
import tomllib
from dataclasses import dataclass, field, replace
from pathlib import Path

from .enumerations import Enumeration, read_enumerations

PATH_MAX = 7
SCOPES = ("process", "page", "frame")
INT_MAX = 2**31 - 1
LONG_MAX = 2**63 - 1

# Range and C++ type of the whole-number types.
INTEGER_TYPES = {
    "int": (-INT_MAX - 1, INT_MAX, "int"),
    "long": (-LONG_MAX - 1, LONG_MAX, "long"),
    "color": (0, 63, "int"),
    "fill_color": (0, 63, "int"),
    "contour_color": (0, 71, "int"),
    "variable": (0, INT_MAX, "int"),
}
MEMBER_KEYS = {"key", "type", "default", "min", "max", "above", "unit", "help", "announces", "offset"}
MEMBER_KEYS |= {"node", "defaults", "name", "set", "ui"}


class DescriptionError(Exception):
    """All faults found, one a line."""


@dataclass(frozen=True)
class Offset:
    name: str
    limit: int | None  # None: as many as the frame's data set has zones
    help: str


@dataclass(frozen=True)
class Member:
    key: tuple[str, ...]
    name: str
    help: str
    in_set: bool
    is_ui: bool = False  # a UI style property in the set
    offset: str | None = None
    node: str | None = None
    type: str | None = None
    default: object = None
    minimum: float | None = None
    maximum: float | None = None
    above: bool = False  # `minimum` itself is not allowed
    unit: str = ""
    announces: str | None = None
    defaults: dict[str, object] = field(default_factory=dict, hash=False)

    @property
    def getter(self) -> str:
        return "get" + self.name if self.name[0].isupper() else self.name

    @property
    def setter(self) -> str:
        return "set" + self.name[0].upper() + self.name[1:]


@dataclass(frozen=True)
class Node:
    name: str
    help: str
    file: str
    base: str | None
    has_set: bool
    members: tuple[Member, ...]


@dataclass(frozen=True)
class Place:
    path: tuple[str, ...]
    node: str
    scope: str
    offset: str | None
    file: str
    defaults: dict[str, object]


@dataclass(frozen=True)
class Entry:
    """One style value with its whole path."""

    path: tuple[str, ...]
    member: Member
    scope: str
    offsets: tuple[Offset, ...]
    file: str


@dataclass
class Style:
    offsets: dict[str, Offset] = field(default_factory=dict)
    nodes: dict[str, Node] = field(default_factory=dict)
    places: list[Place] = field(default_factory=list)
    entries: list[Entry] = field(default_factory=list)
    enumerations: dict[str, Enumeration] = field(default_factory=dict)
    chosen_sets: list[tuple[str, str, dict]] = field(default_factory=list)  # file, name and table of each [set.NAME]
    helps: dict[str, str] = field(default_factory=dict)  # a file's first comment: what the area is

    def all_members(self, node: Node) -> list[Member]:
        """Those of the bases first; a member that replaces one of a base stands in its place."""
        members = self.all_members(self.nodes[node.base]) if node.base else []
        for member in node.members:
            at = next((i for i, other in enumerate(members) if other.key == member.key), None)
            if at is None:
                members.append(member)
            else:
                members[at] = member
        return members


class _Loader:
    def __init__(self, enumerations: dict[str, Enumeration]):
        self.style = Style(enumerations=enumerations)
        self.faults: list[str] = []

    def fault(self, *where_and_what: str) -> None:
        self.faults.append(": ".join(where_and_what))

    def read_file(self, path: Path) -> None:
        text = path.read_text(encoding="utf-8")
        try:
            content = tomllib.loads(text)
        except tomllib.TOMLDecodeError as error:
            self.fault(path.name, f"is not TOML: {error}")
            return
        self.style.helps[path.stem] = " ".join(
            line.lstrip("# ") for line in re.match(r"(#.*\n)*", text).group().splitlines()
        )
        for key in content.keys() - {"offset", "node", "place", "set"}:
            self.fault(path.name, f'"{key}" is unknown; a file holds [offset.NAME], [node.NAME], [set.NAME] and [[place]]')
        for name, table in content.get("offset", {}).items():
            self.read_offset(path.name, name, table)
        for name, table in content.get("node", {}).items():
            self.read_node(path.name, name, table)
        for table in content.get("place", []):
            self.read_place(path.name, table)
        self.style.chosen_sets += [(path.name, name, table) for name, table in content.get("set", {}).items()]

    def read_offset(self, file: str, name: str, table: dict) -> None:
        where = f'offset "{name}"'
        limit = table.get("limit")
        if (limit is None) == (table.get("count") is None):
            self.fault(file, where, 'needs either "limit" (the highest number) or count = "zones"')
        elif limit is None and table["count"] != "zones":
            self.fault(file, where, f'count = "{table["count"]}" is unknown; it would be "zones"')
        elif limit is not None and (not isinstance(limit, int) or limit < 1):
            self.fault(file, where, f"limit = {limit} has to be a whole number from 1")
        self.style.offsets[name] = Offset(name, limit, table.get("help", ""))

    def read_node(self, file: str, name: str, table: dict) -> None:
        where = f'node "{name}"'
        if name in self.style.nodes:
            self.fault(file, where, f"is described in {self.style.nodes[name].file} already; a node has one description")
            return
        for key in table.keys() - {"help", "base", "set", "ui", "members"}:
            self.fault(file, where, f'"{key}" is unknown; a node has help, base, set, ui and members')
        if not table.get("help"):
            self.fault(file, where, 'has no "help"; one sentence is needed')
        members = [self.read_member(file, where, {"ui": bool(table.get("ui", False)), **member}) for member in table.get("members", [])]
        members = [member for member in members if member]
        keys = [member.key for member in members]
        for key in {key for key in keys if keys.count(key) > 1}:
            self.fault(file, where, f'key "{"/".join(key)}"', "stands twice; a key stands once in a node")
        self.style.nodes[name] = Node(
            name, table.get("help", ""), file, table.get("base"), bool(table.get("set", False)), tuple(members)
        )

    def read_member(self, file: str, where: str, table: dict) -> Member | None:
        key = table.get("key")
        if not isinstance(key, str) or not all(re.fullmatch(r"[A-Z][A-Za-z0-9]*", part) for part in key.split("/")):
            self.fault(file, where, f'key "{key}"', 'is no style name; names look like "ShowGrid" or "XYPos/X"')
            return None
        where_key = f'key "{key}"'
        for unknown in table.keys() - MEMBER_KEYS:
            self.fault(file, where, where_key, f'"{unknown}" is unknown; a member has {", ".join(sorted(MEMBER_KEYS))}')
        if not table.get("help"):
            self.fault(file, where, where_key, 'has no "help"; one sentence is needed')
        if ("type" in table) == ("node" in table):
            self.fault(file, where, where_key, 'needs either "type" (a value) or "node" (more values below it)')
            return None
        common = dict(
            key=tuple(key.split("/")),
            name=table.get("name", key.replace("/", "")),
            help=table.get("help", ""),
            in_set=table.get("set", True),
            is_ui=bool(table["ui"]),
            offset=table.get("offset"),
        )
        announces = table.get("announces")
        if announces is not None and announces not in self.style.enumerations["StateChange_e"].enumerators:
            self.fault(file, where, where_key, f'announces "{announces}" is no kind of state change; see StateChange_e')
        common["announces"] = announces
        if "node" in table:
            return Member(node=table["node"], defaults=table.get("defaults", {}), **common)
        return self.read_value(file, where, where_key, table, common)

    def read_value(self, file: str, where: str, where_key: str, table: dict, common: dict) -> Member | None:
        kind = table["type"]
        enumeration = self.style.enumerations.get(kind)
        if enumeration is None and kind not in INTEGER_TYPES and kind not in ("bool", "double", "string"):
            known = ", ".join(["bool", "double", "string", *INTEGER_TYPES])
            self.fault(file, where, where_key, f'type "{kind}" is unknown; it would be {known} or an enumeration')
            return None
        if "default" not in table:
            self.fault(file, where, where_key, 'has no "default"; every value needs one')
            return None
        minimum, maximum, above = self.read_range(file, where, where_key, table)
        member = Member(
            type=kind, default=table["default"], minimum=minimum, maximum=maximum, above=above,
            unit=table.get("unit", ""), **common,
        )
        self.check_default(file, where, where_key, member)
        return member

    def check_default(self, file: str, where: str, where_key: str, member: Member) -> None:
        kind, default = member.type, member.default
        enumeration = self.style.enumerations.get(kind)
        if enumeration:
            if default not in enumeration.enumerators:
                known = ", ".join(enumeration.enumerators)
                self.fault(file, where, where_key, f'default "{default}" is no enumerator of {kind}; it would be one of {known}')
        elif kind == "bool":
            if not isinstance(default, bool):
                self.fault(file, where, where_key, f"default {default!r} is no flag; it would be true or false")
        elif kind == "string":
            if not isinstance(default, str):
                self.fault(file, where, where_key, f"default {default!r} is no text")
        elif isinstance(default, bool) or not isinstance(default, int if kind in INTEGER_TYPES else (int, float)):
            self.fault(file, where, where_key, f"default {default!r} does not have the type {kind}")
        elif (
            (member.minimum is not None and (default <= member.minimum if member.above else default < member.minimum))
            or (member.maximum is not None and default > member.maximum)
            or not math.isfinite(default)
        ):
            self.fault(file, where, where_key, f"default {default} is out of the range that stands beside it")

    def read_range(self, file: str, where: str, where_key: str, table: dict) -> tuple:
        kind = table["type"]
        low, high, _ = INTEGER_TYPES.get(kind, (None, None, None))
        given = [key for key in ("min", "max", "above") if key in table]
        if given and kind != "double" and kind not in INTEGER_TYPES:
            self.fault(file, where, where_key, f'"{given[0]}" stands at a {kind}; only numbers have a range')
            return None, None, False
        if "min" in table and "above" in table:
            self.fault(file, where, where_key, '"min" and "above" exclude each other')
        minimum = table.get("above", table.get("min", low))
        maximum = table.get("max", high)
        if minimum is not None and maximum is not None and minimum > maximum:
            self.fault(file, where, where_key, f"the smallest value {minimum} is above the largest {maximum}")
        return minimum, maximum, "above" in table

    def read_place(self, file: str, table: dict) -> None:
        path = table.get("path", "")
        where = f'place "{path}"'
        for key in table.keys() - {"path", "node", "scope", "offset", "defaults"}:
            self.fault(file, where, f'"{key}" is unknown; a place has path, node, scope, offset and defaults')
        if table.get("scope") not in SCOPES:
            self.fault(file, where, f'scope "{table.get("scope")}" is unknown; it would be one of {", ".join(SCOPES)}')
            return
        names = tuple(path.split("/")) if path else ()
        self.style.places.append(
            Place(names, table.get("node", ""), table["scope"], table.get("offset"), file, table.get("defaults", {}))
        )

    def check_references(self) -> None:
        nodes = self.style.nodes
        for node in nodes.values():
            where = f'node "{node.name}"'
            if node.base and node.base not in nodes:
                self.fault(node.file, where, f'base "{node.base}" is not described; known: {", ".join(sorted(nodes))}')
            for member in node.members:
                where_key = f'key "{"/".join(member.key)}"'
                if member.node and member.node not in nodes:
                    self.fault(node.file, where, where_key, f'node "{member.node}" is not described')
                if member.offset and member.offset not in self.style.offsets:
                    known = ", ".join(sorted(self.style.offsets))
                    self.fault(node.file, where, where_key, f'offset "{member.offset}" is not described; known: {known}')
        for place in self.style.places:
            where = f'place "{"/".join(place.path)}"'
            if place.node not in nodes:
                self.fault(place.file, where, f'node "{place.node}" is not described')
            if place.offset and place.offset not in self.style.offsets:
                self.fault(place.file, where, f'offset "{place.offset}" is not described')

    def check_circles(self) -> None:
        def visit(name: str, above: tuple[str, ...]) -> None:
            if name in above:
                circle = " in ".join((name, *reversed(above[above.index(name) :])))
                self.fault(self.style.nodes[name].file, f'node "{name}"', f"contains itself: {circle}")
                return
            node = self.style.nodes[name]
            for below in [node.base] + [member.node for member in node.members]:
                if below and not self.faults:
                    visit(below, (*above, name))

        for name in self.style.nodes:
            if not self.faults:
                visit(name, ())

    def expand(self) -> None:
        for place in self.style.places:
            unused = dict(place.defaults)
            self.expand_node(place, place.path, (place.offset,) if place.offset else (), self.style.nodes[place.node], unused)
            self.check_all_used(place.file, f'place "{"/".join(place.path)}"', unused)
        self.style.entries.sort(key=lambda entry: entry.path)
        for first, second in zip(self.style.entries, self.style.entries[1:]):
            if first.path == second.path:
                path = "/".join(first.path)
                self.fault(second.file, f'path "{path}"', f"is described twice (also in {first.file}); a path has one description")

    def check_all_used(self, file: str, where: str, unused: dict[str, object]) -> None:
        for key in unused:
            self.fault(file, where, f'defaults "{key}"', "names no value below it")

    def expand_node(
        self, place: Place, path: tuple, offsets: tuple, node: Node, defaults: dict[str, object], announces: str | None = None
    ) -> None:
        """Adds the entries of a node; takes out of `defaults` what it used."""
        for member in self.style.all_members(node):
            full = (*path, *member.key)
            key = "/".join(member.key)
            own = (*offsets, member.offset) if member.offset else offsets
            if member.node:
                below = dict(member.defaults)
                prefix = key + "/"
                for longer in [other for other in defaults if other.startswith(prefix)]:
                    below[longer.removeprefix(prefix)] = defaults.pop(longer)
                self.expand_node(place, full, own, self.style.nodes[member.node], below, member.announces or announces)
                self.check_all_used(node.file, f'node "{node.name}": key "{key}"', below)
                continue
            if key in defaults:
                member = replace(member, default=defaults.pop(key))
                self.check_default(place.file, f'path "{"/".join(full)}"', "defaults", member)
            if announces and not member.announces:
                member = replace(member, announces=announces)
            self.add_entry(place, full, own, node, member)

    def add_entry(self, place: Place, full: tuple, own: tuple, node: Node, member: Member) -> None:
        where = f'path "{"/".join(full)}"'
        if len(full) > PATH_MAX:
            self.fault(node.file, f'node "{node.name}"', where, f"has {len(full)} names; {PATH_MAX} are allowed")
        if len(own) > 2:
            self.fault(node.file, f'node "{node.name}"', where, f"has the offsets {', '.join(own)}; two are allowed")
            return
        found = tuple(self.style.offsets[name] for name in own)
        if len(found) == 2 and found[1].limit is None:
            self.fault(node.file, f'node "{node.name}"', where, f'its second offset "{own[1]}" needs a limit')
        self.style.entries.append(Entry(full, member, place.scope, found, place.file))


def load(folder: Path, enumerations: list[Path]) -> Style:
    """Reads all descriptions of a folder; raises DescriptionError with every fault found."""
    loader = _Loader(read_enumerations(enumerations))
    files = sorted(folder.glob("*.toml"))
    if not files:
        raise DescriptionError(f"{folder}: holds no description (*.toml)")
    for path in files:
        loader.read_file(path)
    loader.check_references()
    if not loader.faults:
        loader.check_circles()
    if not loader.faults:
        loader.expand()
    if loader.faults:
        raise DescriptionError("\n".join(loader.faults))
    return loader.style
