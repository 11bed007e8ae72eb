"""Writes the property sets of the dialogs library: one header a set, and a few sources that compile side by side."""

from .description import INTEGER_TYPES, Member, Style
from .sets import PropertySet, load_sets

NAMESPACE = "vantrix::sdk::ui::propertymanager"
SOURCES = 4  # as many as cmake/VxStyle.cmake names
NOTICE = "/* Written from style/ by tools/generate_style.py. Do not edit. */"


def nested_class(member: Member) -> str:
    return f"{member.node}PropertiesGenerated"


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


def accessors(member: Member, is_narrowed: bool) -> list[str]:
    if member.node:
        # A derived set that has a set of a derived kind there hides the getter by one of that type.
        keyword = "" if is_narrowed else "virtual "
        return [f"    {keyword}boost::shared_ptr<{nested_class(member)}> {member.getter}() const;"]
    return [
        f"    /// {contract(member)}",
        f"    virtual {exposed(member)} {member.getter}() const;",
        f"    virtual void {member.setter}({exposed(member)} property);",
    ]


def declaration(member: Member) -> str:
    if member.node:
        return f"    boost::shared_ptr<{nested_class(member)}> {field_name(member)};"
    kind = "UIPropertySetMember" if member.is_ui else "PropertySetMember"
    return f"    {kind}<{cpp_type(member)}> {field_name(member)};"


def header(one: PropertySet, sets: list[PropertySet]) -> str:
    name = one.class_name
    derived = [other for other in sets if other.base and other.base.name == one.name]
    narrowed = {first.name for other in sets for first, _ in other.narrowed_members}
    members = [*one.added_members, *(member for _, member in one.narrowed_members)]
    base = one.base.class_name if one.base else "UIKernelStylePropertiesAbstract"
    base_folder = "propertymanager/generated"
    nested = sorted({nested_class(member) for member in members if member.node})
    kinds = sorted({"UIPropertySetMember" if member.is_ui else "PropertySetMember" for member in members if not member.node})
    lines = [
        "#pragma once",
        "",
        NOTICE,
        "",
        '#include "api/VtxEnumerations.h"',
        *(f'#include "propertymanager/generated/{kind}.h"' for kind in kinds),
        f'#include "{base_folder}/{base}.h"',
        '#include "toolbox/StringList.h"',
        "",
        f"namespace {NAMESPACE} {{",
        "",
        *(f"class {other};" for other in nested),
        *([""] if nested else []),
        f"/// {one.help}",
        f"class {name} : public {base}",
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
        lines += accessors(member, member.name in narrowed)
    fields = [declaration(member) for member in one.added_members]
    lines += ["", "protected:" if derived else "private:", *fields] if fields else []
    lines += ["};", "", f"}} // namespace {NAMESPACE}", ""]
    return "\n".join(lines)


def constructor(one: PropertySet, argument: str, base: str, modal: str) -> list[str]:
    """`modal` and the base path reach every member; the order is that of declaration."""
    name = one.class_name
    if one.base:
        initialisers = [f"{one.base.class_name}({base}, basePath)"]
    else:
        initialisers = [f"UIKernelStylePropertiesAbstract({base})"]
    for member in one.added_members:
        if member.node:
            other = nested_class(member)
            initialisers.append(f"{field_name(member)}(boost::make_shared<{other}>(this, {path(member)}))")
        else:
            initialisers.append(f"{field_name(member)}({modal}, {path(member)})")
    first, *rest = initialisers
    replacements = [
        f"    replaceNested({field_name(inherited)}, boost::make_shared<{nested_class(member)}>(this, {path(member)}));"
        for inherited, member in one.narrowed_members
    ]
    return [
        f"{name}::{name}({argument}, toolbox::StringList basePath)",
        f"    : {first}",
        *(f"    , {initialiser}" for initialiser in rest),
        *(["{", *replacements, "}"] if replacements else ["{}"]),
        "",
    ]


def definitions(one: PropertySet) -> list[str]:
    name = one.class_name
    members = one.members
    lines = constructor(one, "bool modal", "modal", "modal")
    lines += constructor(one, "UIKernelStylePropertiesAbstract* parent", "parent", "isModal()")
    lines += [f"{name}::~{name}() = default;", "", f"void {name}::submitProperties()", "{"]
    for member in members:
        lines.append(f"    {field_name(member)}{'->submitProperties' if member.node else '.submit'}();")
    lines += ["}", "", f"void {name}::setOffset(int first, int second)", "{", "    rememberOffset(first, second);"]
    are_all_nested = all(member.node for member in members)
    for member in members:
        if are_all_nested:
            lines.append(f"    {field_name(member)}->setCollectionOffset({field_name(member)}->collectionOffset());")
        # A nested set with an offset of its own is a collection and is aimed by itself.
        elif not (member.node and member.offset):
            lines.append(f"    {field_name(member)}{'->setOffset' if member.node else '.setOffsets'}(first, second);")
    lines += ["}", ""]
    for _, member in one.narrowed_members:
        nested = nested_class(member)
        cast = f"boost::static_pointer_cast<{nested}>({field_name(member)})"
        lines += [f"boost::shared_ptr<{nested}> {name}::{member.getter}() const", "{", f"    return {cast};", "}", ""]
    for member in one.added_members:
        if member.node:
            nested = nested_class(member)
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


def source(sets: list[PropertySet], defined: list[PropertySet]) -> str:
    """Nested sets are made in the sources of others, so each source knows all classes."""
    lines = [NOTICE, *(f'#include "propertymanager/generated/{one.class_name}.h"' for one in sets), ""]
    lines += [f"namespace {NAMESPACE} {{", ""]
    for one in defined:
        lines += definitions(one)
    return "\n".join([*lines, f"}} // namespace {NAMESPACE}", ""])


def write(style: Style) -> dict[str, str]:
    """The text of each file by its name."""
    sets = load_sets(style)
    files = {f"{one.class_name}.h": header(one, sets) for one in sets}
    for number in range(SOURCES):
        files[f"PropertySets{number + 1}.cpp"] = source(sets, sets[number::SOURCES])
    return files


def visitor(one: PropertySet) -> list[str]:
    lines = ["", "template<typename Visitor>", f"void visitMembers({one.class_name}& set, std::string const& path, Visitor& visit)", "{"]
    for member in one.members:
        key, get = "/".join(member.key), f"set.{member.getter}()"
        if member.offset:
            lines.append(f"    {get}->setCollectionOffset(1);")
        call = f'visitMembers(*{get}, path + "/{key}", visit)' if member.node else f'visit(path + "/{key}", {get})'
        lines.append(f"    {call};")
    return [*lines, "}"]


def write_walk(style: Style) -> str:
    """A header for the tests that reaches every member of every set."""
    sets = load_sets(style)
    lines = ["#pragma once", "", NOTICE, "", *(f'#include "propertymanager/generated/{one.class_name}.h"' for one in sets), ""]
    lines += [f"namespace {NAMESPACE} {{", ""]
    for one in sets:
        lines += ["template<typename Visitor>", f"void visitMembers({one.class_name}& set, std::string const& path, Visitor& visit);"]
    for one in sets:
        lines += visitor(one)
    lines += [
        "",
        "/// Calls `visit.operator()<Set>(name, base path, number of offsets)` for every set.",
        "template<typename Visitor>",
        "void visitSets(Visitor&& visit)",
        "{",
    ]
    for one in sets:
        names = ", ".join(f'"{name}"' for name in one.path)
        lines.append(f'    visit.template operator()<{one.class_name}>("{one.class_name}", toolbox::StringList{{{names}}}, {one.offsets});')
    lines += ["}", "", f"}} // namespace {NAMESPACE}", ""]
    return "\n".join(lines)
