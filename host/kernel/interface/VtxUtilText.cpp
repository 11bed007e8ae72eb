#include "api/VtxUtilText.h"

#include "kernel/Document.h"
#include "kernel/TextValues.h"
#include "kernel/Texts.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"

#include <algorithm>

using namespace vantrix::kernel;

namespace {

Texts& texts()
{
    return Kernel::instance().texts();
}

bool noSuchText(long handle)
{
    return boundary::fail("There is no text " + std::to_string(handle) + '.');
}

bool unknown(const VtxArgList::Argument& argument)
{
    return boundary::fail("The argument \"" + argument.name + "\" is unknown or has a wrong type.");
}

TextValue::Value valueOf(const VtxArgList::Argument& argument)
{
    if (const auto* number = std::get_if<long>(&argument.value)) {
        return *number;
    }
    if (const auto* number = std::get_if<double>(&argument.value)) {
        return *number;
    }
    const auto* text = std::get_if<std::string>(&argument.value);
    return text ? TextValue::Value(*text) : TextValue::Value(std::string());
}

bool isValue(const VtxArgList::Argument& argument)
{
    return std::holds_alternative<long>(argument.value) || std::holds_alternative<double>(argument.value) ||
           std::holds_alternative<std::string>(argument.value);
}

/* Writes a value to where an argument points to; false when it points to another type. */
bool put(const VtxArgList::Argument& argument, const TextValue::Value& value)
{
    if (auto* const* target = std::get_if<long*>(&argument.value); target && std::holds_alternative<long>(value)) {
        **target = std::get<long>(value);
        return true;
    }
    if (auto* const* target = std::get_if<double*>(&argument.value); target && std::holds_alternative<double>(value)) {
        **target = std::get<double>(value);
        return true;
    }
    auto* const* target = std::get_if<char**>(&argument.value);
    if (target && std::holds_alternative<std::string>(value)) {
        **target = boundary::copyString(std::get<std::string>(value));
        return true;
    }
    return false;
}

/* What the list asks for, on top of an existing text or of the defaults. */
bool assign(const VtxArgList& arguments, Text& text)
{
    for (const VtxArgList::Argument& argument : arguments.arguments) {
        if (argument.name == "TextID" || argument.name == "Result") {
            continue;
        }
        const TextValue* value = findTextValue(argument.name);
        if (!value || !isValue(argument)) {
            return unknown(argument);
        }
        value->assign(text, valueOf(argument));
    }
    return !text.text.empty() || boundary::fail("\"Text\" of a text has to say something.");
}

bool change(const VtxArgList& arguments, long handle)
{
    const Text* existing = texts().find(handle);
    if (!existing) {
        return noSuchText(handle);
    }
    Text text = *existing;
    return assign(arguments, text) && texts().change(std::move(text));
}

bool create(const VtxArgList& arguments)
{
    Frame* frame = Kernel::instance().document().activeFrame();
    if (!frame) {
        return boundary::fail("There is no frame to put a text into.");
    }
    Text text;
    if (!assign(arguments, text)) {
        return false;
    }
    const long created = texts().add(*frame, std::move(text));
    if (long* const* result = arguments.findAs<long*>("Result")) {
        **result = created;
    }
    return true;
}

} // namespace

bool VtxUtilTextSetX(VtxArgListHandle arguments)
{
    const auto set = [&] {
        const long* handle = arguments->findAs<long>("TextID");
        return handle ? change(*arguments, *handle) : create(*arguments);
    };
    return boundary::change<&VtxUtilTextSetX>(false, set, arguments);
}

bool VtxUtilTextGetX(VtxArgListHandle arguments)
{
    return boundary::guarded(false, [&] {
        const long* handle = arguments->findAs<long>("TextID");
        const Text* text = handle ? texts().find(*handle) : nullptr;
        if (!text) {
            return noSuchText(handle ? *handle : 0);
        }
        const auto isUnknown = [&](const VtxArgList::Argument& argument) {
            return argument.name != "TextID" && !findTextValue(argument.name);
        };
        const auto wrong = std::find_if(arguments->arguments.begin(), arguments->arguments.end(), isUnknown);
        if (wrong != arguments->arguments.end()) {
            return unknown(*wrong);
        }
        for (const VtxArgList::Argument& argument : arguments->arguments) {
            if (argument.name != "TextID" && !put(argument, findTextValue(argument.name)->get(*text))) {
                return unknown(argument);
            }
        }
        return true;
    });
}

bool VtxUtilTextSetHeight(long text, double height)
{
    const auto set = [&] {
        const Text* existing = texts().find(text);
        if (!existing) {
            return noSuchText(text);
        }
        Text changed = *existing;
        findTextValue("Height")->assign(changed, height);
        return texts().change(std::move(changed));
    };
    return boundary::change<&VtxUtilTextSetHeight>(false, set, text, height);
}

bool VtxUtilTextDelete(long text)
{
    const auto remove = [&] { return texts().remove(text) || noSuchText(text); };
    return boundary::change<&VtxUtilTextDelete>(false, remove, text);
}

bool VtxUtilTextIsValid(long text)
{
    return texts().find(text) != nullptr;
}

long VtxUtilTextGetFirst(void)
{
    const Frame* frame = Kernel::instance().document().activeFrame();
    return frame && !frame->texts().empty() ? frame->texts().front()->handle : 0;
}

long VtxUtilTextGetNext(long text)
{
    const Frame* frame = texts().frameOf(text);
    if (!frame) {
        return 0;
    }
    const auto& all = frame->texts();
    const auto found = std::find_if(all.begin(), all.end(), [&](const auto& each) { return each->handle == text; });
    const auto next = std::next(found);
    return next == all.end() ? 0 : (*next)->handle;
}
