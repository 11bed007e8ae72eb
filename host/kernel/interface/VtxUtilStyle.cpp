#include "api/VtxUtilStyle.h"

#include "kernel/StyleActions.h"
#include "kernel/StyleCheck.h"
#include "kernel/StylePath.h"
#include "kernel/StyleStore.h"
#include "kernel/StyleVocabulary.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"

#include <optional>
#include <string_view>

using namespace std::string_view_literals; // compared by length first, which a plain literal is not
using namespace vantrix::kernel;
using vantrix::kernel::boundary::report;
using vantrix::kernel::boundary::style;

namespace {

/* Both the style's own last error and that of the interface. */
template<class Code>
Code refuse(Code code, const std::string& text)
{
    style().setLastError(text);
    boundary::fail(text);
    return code;
}

/* The arguments that say which value: taken out of the list one by one. */
struct Address
{
    long entry = -1;
    long offset1 = -1;
    long offset2 = -1;

    /* Whether the argument is one of the address. */
    bool take(const VtxArgList::Argument& argument)
    {
        const std::string_view name = argument.name;
        long* target = name == "Entry"sv     ? &entry
                       : name == "Offset1"sv ? &offset1
                       : name == "Offset2"sv ? &offset2
                                             : nullptr;
        const long* value = target ? std::get_if<long>(&argument.value) : nullptr;
        if (value) {
            *target = *value;
        }
        return value != nullptr;
    }
};

std::string unknownArgumentText(const VtxArgList::Argument& argument, const char* known)
{
    return "The argument \"" + argument.name + "\" is unknown or has a wrong type; known are " + known + '.';
}

constexpr const char* readArguments =
    "\"Entry\", \"Offset1\", \"Offset2\" and one pointer \"IValue\", \"DValue\" or \"StrValue\"";
constexpr const char* writeArguments = "\"Entry\", \"Offset1\", \"Offset2\", \"IValue\", \"DValue\", \"StrValue\", "
                                       "\"AssignOp\" and \"ObjectSet\"";

std::string wrongTypeText(long entry)
{
    const StyleEntry& about = styleDescription(entry);
    return stylePathText(entry) + " is " + styleTypeText(about.type) + "; the arguments ask for another type.";
}

/* What a reading list gives to write the value to. */
struct Target
{
    long* integer = nullptr;
    double* real = nullptr;
    char** text = nullptr;

    bool take(const VtxArgList::Argument& argument)
    {
        if (argument.name == "IValue"sv) {
            return takeAs(argument, integer);
        }
        if (argument.name == "DValue"sv) {
            return takeAs(argument, real);
        }
        return argument.name == "StrValue"sv && takeAs(argument, text);
    }

    int count() const { return (integer ? 1 : 0) + (real ? 1 : 0) + (text ? 1 : 0); }

    /* False when the value has another type than the target. */
    bool put(const StyleData& value) const
    {
        if (const long* found = std::get_if<long>(&value); found && integer) {
            *integer = *found;
            return true;
        }
        if (const double* found = std::get_if<double>(&value); found && real) {
            *real = *found;
            return true;
        }
        if (const auto* found = std::get_if<std::string>(&value); found && text) {
            *text = boundary::copyString(*found);
            return true;
        }
        return false;
    }

private:
    template<class Pointer>
    static bool takeAs(const VtxArgList::Argument& argument, Pointer& pointer)
    {
        const Pointer* value = std::get_if<Pointer>(&argument.value);
        pointer = value ? *value : nullptr;
        return pointer != nullptr;
    }
};

GetValueReturnCode_e readValue(const VtxArgList& arguments)
{
    Address address;
    Target target;
    for (const VtxArgList::Argument& argument : arguments.arguments) {
        if (!address.take(argument) && !target.take(argument)) {
            return refuse(GetValueReturnCode_BadArgument, unknownArgumentText(argument, readArguments));
        }
    }
    if (target.count() != 1) {
        return refuse(GetValueReturnCode_BadArgument,
                      "Reading a style value takes one of \"IValue\", \"DValue\" and \"StrValue\".");
    }
    StyleData value;
    const GetValueReturnCode_e code = style().get(address.entry, address.offset1, address.offset2, value);
    if (code == GetValueReturnCode_Ok && !target.put(value)) {
        return refuse(GetValueReturnCode_WrongType, wrongTypeText(address.entry));
    }
    return report(code);
}

/* The value that a writing list gives, chosen by the entry's type where "IValue" and "DValue" stand side by side. */
std::optional<StyleData> givenValue(const VtxArgList& arguments)
{
    if (const long* integer = arguments.findAs<long>("IValue")) {
        return *integer;
    }
    if (const double* real = arguments.findAs<double>("DValue")) {
        return *real;
    }
    if (const auto* text = arguments.findAs<std::string>("StrValue")) {
        return *text;
    }
    return std::nullopt;
}

bool isValueArgument(const VtxArgList::Argument& argument)
{
    return (argument.name == "IValue"sv && std::holds_alternative<long>(argument.value)) ||
           (argument.name == "DValue"sv && std::holds_alternative<double>(argument.value)) ||
           (argument.name == "StrValue"sv && std::holds_alternative<std::string>(argument.value)) ||
           (argument.name == "AssignOp"sv && std::holds_alternative<long>(argument.value)) ||
           (argument.name == "ObjectSet"sv && std::holds_alternative<VtxSet>(argument.value));
}

SetValueReturnCode_e writeValue(const VtxArgList& arguments)
{
    boundary::expectLocked();
    Address address;
    for (const VtxArgList::Argument& argument : arguments.arguments) {
        if (!address.take(argument) && !isValueArgument(argument)) {
            return refuse(SetValueReturnCode_BadArgument, unknownArgumentText(argument, writeArguments));
        }
    }
    if (const long* operation = arguments.findAs<long>("AssignOp");
        operation && *operation != AssignOp_Equals && *operation != AssignOp_Default) {
        return refuse(SetValueReturnCode_BadArgument,
                      "\"AssignOp\" is " + std::to_string(*operation) + "; it has to be 0 Equals or 255 Default.");
    }
    const std::optional<StyleData> value = givenValue(arguments);
    if (!value) {
        return refuse(SetValueReturnCode_BadArgument,
                      "Writing a style value takes \"IValue\", \"DValue\" or \"StrValue\".");
    }
    if (const auto* objects = arguments.findAs<VtxSet>("ObjectSet")) {
        const std::vector<long> offsets(objects->members.begin(), objects->members.end());
        return report(StyleActions::set(address.entry, offsets, address.offset2, *value));
    }
    return report(StyleActions::set(address.entry, {address.offset1}, address.offset2, *value));
}

} // namespace

long VtxUtilStyleGetMacroID(const char* name)
{
    return boundary::guarded(-1L, [&] { return name ? styleNameId(name) : -1L; });
}

long VtxUtilStyleFindEntry(const long* macroIDs, int count)
{
    return boundary::guarded(-1L, [&] {
        const std::size_t length = macroIDs && count > 0 ? static_cast<std::size_t>(count) : 0;
        const long entry = styleEntryOf(macroIDs, length);
        if (entry < 0) {
            const std::string known = knownPartOfStylePath(macroIDs, length);
            refuse(SetValueReturnCode_UnknownPath, "There is no style value with that path; " +
                                                       (known.empty() ? "no path begins with its first name."
                                                                      : "the known part of it is " + known + '.'));
        }
        return entry;
    });
}

unsigned long VtxUtilStyleGetChangeStamp(long entry)
{
    return boundary::guarded(0UL, [&] { return style().changeStamp(entry); });
}

GetValueReturnCode_e VtxUtilStyleGetLowLevelX(VtxArgListHandle arguments)
{
    return boundary::guarded(GetValueReturnCode_BadArgument, [&] {
        return arguments ? readValue(*arguments)
                         : refuse(GetValueReturnCode_BadArgument, "Reading a style value takes an argument list.");
    });
}

SetValueReturnCode_e VtxUtilStyleSetLowLevelX(VtxArgListHandle arguments)
{
    return boundary::guarded(SetValueReturnCode_BadArgument, [&] {
        return arguments ? writeValue(*arguments)
                         : refuse(SetValueReturnCode_BadArgument, "Writing a style value takes an argument list.");
    });
}

char* VtxUtilStyleGetLastErrorString(void)
{
    return boundary::guarded<char*>(nullptr, [] { return boundary::copyStringOrNull(style().lastError()); });
}
