"""Writes the property sets of the dialogs library: one header a node with `set = true`, one source for all of them."""

from .description import INTEGER_TYPES, Member, Node, Style

NAMESPACE = "vantrix::sdk::ui::propertymanager"
NOTICE = "/* Written from style/ by tools/generate_style.py. Do not edit. */"


def class_name(node: Node) -> str:
    return f"{node.name}PropertiesGenerated"


def cpp_type(member: Member) -> str:
    if member.type in INTEGER_TYPES:
        return INTEGER_TYPES[member.type][2]
    return {"string": "std::string"}.get(member.type, member.type)


def exposed(member: Member) -> str:
    return f"boost::shared_ptr<PropertyAbstract<{cpp_type(member)}>>"


def field_name(member: Member) -> str:
    return f"m_{member.name[0].lower()}{member.name[1:]}"


def path(member: Member) -> str:
    return " + ".join(["basePath", *(f'"{name}"' for name in member.key)])


def set_members(style: Style, node: Node) -> list[Member]:
    return [member for member in style.all_members(node) if member.in_set]


def contract(member: Member) -> str:
    """The comment of a getter: what the value is, its unit and range."""
    facts = [member.help]
    if member.unit:
        facts.append(f"In {member.unit}.")
    low = None if member.minimum is None else f"{'above' if member.above else 'from'} {member.minimum:g}"
    high = None if member.maximum is None or member.type in ("int", "long") else f"to {member.maximum:g}"
    if low and member.type not in ("int", "long", "variable"):
        facts.append(" ".join(filter(None, (low[0].upper() + low[1:], high))) + ".")
    return " ".join(facts)


def accessors(style: Style, member: Member) -> list[str]:
    if member.node:
        nested = class_name(style.nodes[member.node])
        return [f"    virtual boost::shared_ptr<{nested}> {member.getter}() const;"]
    return [
        f"    /// {contract(member)}",
        f"    virtual {exposed(member)} {member.getter}() const;",
        f"    virtual void {member.setter}({exposed(member)} property);",
    ]


def declaration(style: Style, member: Member) -> str:
    if member.node:
        return f"    boost::shared_ptr<{class_name(style.nodes[member.node])}> {field_name(member)};"
    return f"    PropertySetMember<{cpp_type(member)}> {field_name(member)};"


def header(style: Style, node: Node) -> str:
    name = class_name(node)
    members = set_members(style, node)
    nested = sorted({class_name(style.nodes[member.node]) for member in members if member.node})
    lines = [
        "#pragma once",
        "",
        NOTICE,
        "",
        '#include "api/VtxEnumerations.h"',
        '#include "propertymanager/generated/PropertySetMember.h"',
        '#include "propertymanager/generated/UIKernelStylePropertiesAbstract.h"',
        '#include "toolbox/StringList.h"',
        "",
        f"namespace {NAMESPACE} {{",
        "",
        *(f"class {other};" for other in nested),
        *([""] if nested else []),
        f"/// {node.help}",
        f"class {name} : public UIKernelStylePropertiesAbstract",
        "{",
        "public:",
        "    /// @param modal  whether edits wait for submit()",
        f"    {name}(bool modal, toolbox::StringList basePath);",
        f"    {name}(UIKernelStylePropertiesAbstract* parent, toolbox::StringList basePath);",
        f"    ~{name}() override;",
        "",
        "    void submitProperties() override;",
        "    void setOffset(int first, int second) override;",
        "",
    ]
    for member in members:
        lines += accessors(style, member)
    lines += ["", "private:", *(declaration(style, member) for member in members), "};", "", f"}} // namespace {NAMESPACE}", ""]
    return "\n".join(lines)


def constructor(style: Style, node: Node, members: list[Member], argument: str, base: str, modal: str) -> list[str]:
    """`modal` and the base path reach every member; the order is that of declaration."""
    name = class_name(node)
    initialisers = [f"UIKernelStylePropertiesAbstract({base})"]
    for member in members:
        if member.node:
            other = class_name(style.nodes[member.node])
            initialisers.append(f"{field_name(member)}(boost::make_shared<{other}>(this, {path(member)}))")
        else:
            initialisers.append(f"{field_name(member)}({modal}, {path(member)})")
    first, *rest = initialisers
    return [
        f"{name}::{name}({argument}, toolbox::StringList basePath)",
        f"    : {first}",
        *(f"    , {initialiser}" for initialiser in rest),
        "{}",
        "",
    ]


def definitions(style: Style, node: Node) -> list[str]:
    name = class_name(node)
    members = set_members(style, node)
    lines = constructor(style, node, members, "bool modal", "modal", "modal")
    lines += constructor(style, node, members, "UIKernelStylePropertiesAbstract* parent", "parent", "isModal()")
    lines += [f"{name}::~{name}() = default;", "", f"void {name}::submitProperties()", "{"]
    for member in members:
        lines.append(f"    {field_name(member)}{'->submitProperties' if member.node else '.submit'}();")
    lines += ["}", "", f"void {name}::setOffset(int first, int second)", "{", "    rememberOffset(first, second);"]
    for member in members:
        lines.append(f"    {field_name(member)}{'->setOffset' if member.node else '.setOffsets'}(first, second);")
    lines += ["}", ""]
    for member in members:
        if member.node:
            nested = class_name(style.nodes[member.node])
            lines += [f"boost::shared_ptr<{nested}> {name}::{member.getter}() const", "{", f"    return {field_name(member)};", "}", ""]
            continue
        lines += [
            f"{exposed(member)} {name}::{member.getter}() const",
            "{",
            f"    return {field_name(member)}.exposed();",
            "}",
            "",
            f"void {name}::{member.setter}({exposed(member)} property)",
            "{",
            f"    {field_name(member)}.setExposed(std::move(property));",
            "}",
            "",
        ]
    return lines


def write(style: Style) -> dict[str, str]:
    """The text of each file by its name."""
    nodes = sorted((node for node in style.nodes.values() if node.has_set), key=class_name)
    files = {f"{class_name(node)}.h": header(style, node) for node in nodes}
    source = [NOTICE, *(f'#include "propertymanager/generated/{class_name(node)}.h"' for node in nodes), "", f"namespace {NAMESPACE} {{", ""]
    for node in nodes:
        source += definitions(style, node)
    files["PropertySets.cpp"] = "\n".join([*source, f"}} // namespace {NAMESPACE}", ""])
    return files


def first_places(style: Style) -> dict[str, tuple[tuple[str, ...], int]]:
    """Where each node stands first in the style: its path, and how many offsets its values have at the least."""
    found: dict[str, tuple[tuple[str, ...], int]] = {}

    def visit(name: str, at: tuple[str, ...], offsets: int) -> None:
        found.setdefault(name, (at, offsets))
        for member in style.all_members(style.nodes[name]):
            if member.node:
                visit(member.node, (*at, *member.key), offsets + bool(member.offset))

    for place in style.places:
        visit(place.node, place.path, int(bool(place.offset)))
    return found


def write_walk(style: Style) -> str:
    """A header for the tests that reaches every member of every set."""
    nodes = sorted((node for node in style.nodes.values() if node.has_set), key=class_name)
    places = first_places(style)
    lines = ["#pragma once", "", NOTICE, "", *(f'#include "propertymanager/generated/{class_name(node)}.h"' for node in nodes), ""]
    lines += [f"namespace {NAMESPACE} {{", ""]
    for node in nodes:
        lines += ["template<typename Visitor>", f"void visitMembers({class_name(node)}& set, std::string const& path, Visitor&& visit);"]
    for node in nodes:
        lines += [
            "",
            "template<typename Visitor>",
            f"void visitMembers({class_name(node)}& set, std::string const& path, Visitor&& visit)",
            "{",
        ]
        for member in set_members(style, node):
            key = "/".join(member.key)
            call = f'visitMembers(*set.{member.getter}(), path + "/{key}", visit)' if member.node else f'visit(path + "/{key}", set.{member.getter}())'
            lines.append(f"    {call};")
        lines.append("}")
    lines += [
        "",
        "/// Calls `visit.operator()<Set>(name, base path, number of offsets)` for every set.",
        "template<typename Visitor>",
        "void visitSets(Visitor&& visit)",
        "{",
    ]
    for node in nodes:
        at, offsets = places[node.name]
        names = ", ".join(f'"{name}"' for name in at)
        lines.append(f'    visit.template operator()<{class_name(node)}>("{class_name(node)}", toolbox::StringList{{{names}}}, {offsets});')
    lines += ["}", "", f"}} // namespace {NAMESPACE}", ""]
    return "\n".join(lines)
