"""The property sets that the descriptions ask for.

A node with `set = true` is a set of its members. A table chooses a set's members from several places:

    [set.NAME]
    help      one sentence
    class     name of the class, where it is not NAMEPropertiesGenerated
    path      what the keys are relative to; left out for the root
    members   tables of `name` (of the getter) and `key` (the last names of the path of a value, or of a node that is a set)
"""

from dataclasses import dataclass, replace

from .description import DescriptionError, Member, Style


@dataclass(frozen=True)
class PropertySet:
    name: str
    help: str
    members: tuple[Member, ...]
    path: tuple[str, ...]  # where it stands first in the style
    offsets: int  # how many offsets its values have at the least
    own_class_name: str | None = None
    base: "PropertySet | None" = None  # the set that it derives from; `members` holds the base's members, too

    @property
    def class_name(self) -> str:
        return self.own_class_name or f"{self.name}PropertiesGenerated"

    def inherited(self, member: Member) -> Member | None:
        """The member of the base that this one is, or whose set it narrows to a derived one."""
        return next((other for other in self.base.members if other.name == member.name), None) if self.base else None

    @property
    def added_members(self) -> list[Member]:
        return [member for member in self.members if not self.inherited(member)]

    @property
    def narrowed_members(self) -> list[tuple[Member, Member]]:
        """Nested sets that are of another kind than the base's, each behind that of the first base that has it."""
        pairs = [(self.first_declared(member), member) for member in self.members if member.node and self.inherited(member)]
        return [(first, member) for first, member in pairs if first.node != member.node]

    def first_declared(self, member: Member) -> Member:
        inherited = self.inherited(member)
        return self.base.first_declared(inherited) if inherited else member


class _Sets:
    def __init__(self, style: Style):
        self.style = style
        self.faults: list[str] = []
        self.values = {entry.path: entry for entry in style.entries}
        self.nodes: dict[tuple[str, ...], str] = {}
        self.first_places: dict[str, tuple[tuple[str, ...], int]] = {}
        for place in style.places:
            self.find_places(place.node, place.path, int(bool(place.offset)))

    def find_places(self, node: str, path: tuple[str, ...], offsets: int) -> None:
        self.nodes.setdefault(path, node)
        for kind in self.with_bases(node):
            self.first_places.setdefault(kind, (path, offsets))
        for member in self.style.all_members(self.style.nodes[node]):
            if member.node:
                self.find_places(member.node, (*path, *member.key), offsets + bool(member.offset))

    def with_bases(self, node: str | None) -> list[str]:
        return [node, *self.with_bases(self.style.nodes[node].base)] if node else []

    def of_node(self, name: str) -> PropertySet | None:
        node = self.style.nodes[name]
        if name not in self.first_places:
            self.faults.append(f'{node.file}: node "{name}": is a set and stands nowhere in the style; a [[place]] is missing')
            return None
        members = tuple(member for member in self.style.all_members(node) if member.in_set)
        for member in members:
            if member.node and not self.style.nodes[member.node].has_set:
                self.faults.append(
                    f'{node.file}: node "{name}": key "{"/".join(member.key)}": node "{member.node}" is no set; '
                    "give it set = true, or this member set = false"
                )
        has_base = node.base and self.style.nodes[node.base].has_set
        one = PropertySet(name, node.help, members, *self.first_places[name], base=self.of_node(node.base) if has_base else None)
        self.check_narrowed(node.file, one)
        return one

    def check_narrowed(self, file: str, one: PropertySet) -> None:
        for member in one.members:
            inherited = one.inherited(member)
            if inherited and not self.narrows(member, inherited):
                self.faults.append(
                    f'{file}: node "{one.name}": key "{"/".join(member.key)}": replaces a member of "{one.base.name}", '
                    "whose set it derives from; it needs the same type, or a node that derives from the base's"
                )

    def narrows(self, member: Member, inherited: Member) -> bool:
        if inherited.node:
            return inherited.node in self.with_bases(member.node)
        return member.type == inherited.type

    def chosen_member(self, where: str, base: tuple[str, ...], table: dict) -> Member | None:
        key = tuple(table.get("key", "").split("/"))
        path = (*base, *key)
        if path in self.values:
            return replace(self.values[path].member, key=key, name=table["name"])
        node = self.nodes.get(path)
        if node and self.style.nodes[node].has_set:
            return Member(key=key, name=table["name"], help=self.style.nodes[node].help, in_set=True, node=node)
        self.faults.append(f'{where}: key "{table.get("key")}": no value and no set has the path "{"/".join(path)}"')
        return None

    def chosen(self, file: str, name: str, table: dict) -> PropertySet:
        where = f'{file}: set "{name}"'
        for unknown in table.keys() - {"help", "class", "path", "members"}:
            self.faults.append(f'{where}: "{unknown}" is unknown; a set has help, class, path and members')
        if not table.get("help"):
            self.faults.append(f'{where}: has no "help"; one sentence is needed')
        base = tuple(table["path"].split("/")) if table.get("path") else ()
        tables = [member for member in table.get("members", []) if self.is_complete(where, member)]
        members = [self.chosen_member(where, base, member) for member in tables]
        offsets = [len(self.values[path].offsets) for path in ((*base, *member.key) for member in members if member) if path in self.values]
        found = tuple(member for member in members if member)
        return PropertySet(name, table.get("help", ""), found, base, min(offsets, default=0), table.get("class"))

    def is_complete(self, where: str, table: dict) -> bool:
        if table.keys() == {"name", "key"}:
            return True
        self.faults.append(f'{where}: a member has "name" and "key", not {", ".join(sorted(table)) or "nothing"}')
        return False


def load_sets(style: Style) -> list[PropertySet]:
    """All sets by class name; raises DescriptionError with every fault found."""
    sets = _Sets(style)
    found = [sets.of_node(node.name) for node in style.nodes.values() if node.has_set]
    found += [sets.chosen(*table) for table in style.chosen_sets]
    result = sorted((one for one in found if one), key=lambda one: one.class_name)
    for first, second in zip(result, result[1:]):
        if first.name == second.name:
            sets.faults.append(f'set "{first.name}": is described twice; a set has one description')
    if sets.faults:
        raise DescriptionError("\n".join(sets.faults))
    return result
