#include "kernel/StyleActions.h"

#include "kernel/ApplicationLock.h"
#include "kernel/DataError.h"
#include "kernel/Enumerators.h"
#include "kernel/Kernel.h"
#include "kernel/StyleCheck.h"
#include "kernel/StylePath.h"
#include "kernel/StyleVocabulary.h"
#include "kernel/UndoStack.h"
#include "kernel/macro/MacroRecorder.h"

#include <algorithm>
#include <cctype>

namespace vantrix::kernel {

namespace {

MacroValue macroValue(long entry, const StyleData& value)
{
    if (const long* number = std::get_if<long>(&value)) {
        const StyleEntry& about = styleDescription(entry);
        const bool isEnumeration = about.type == StyleType::Enumeration;
        const char* name = isEnumeration ? enumeratorName(styleEnumeration(about.enumeration), *number) : nullptr;
        return name ? MacroValue(std::string(name)) : MacroValue(*number);
    }
    if (const double* number = std::get_if<double>(&value)) {
        return *number;
    }
    return std::get<std::string>(value);
}

/* "RangeMin" as "Range Min", "GRSpacing" as "GR Spacing". */
std::string words(std::string_view name)
{
    const auto isUpper = [&](std::size_t i) {
        return i < name.size() && std::isupper(static_cast<unsigned char>(name[i]));
    };
    std::string text;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool endsWord = !isUpper(i - 1) || (i + 1 < name.size() && !isUpper(i + 1));
        if (i > 0 && isUpper(i) && endsWord) {
            text += ' ';
        }
        text += name[i];
    }
    return text;
}

/* What a change of a style value is called in the menu: its name, with the one before where that is short ("Mesh
 * Color"). */
std::string stepName(long entry)
{
    constexpr std::size_t shortName = 6;
    const std::string path = stylePath(entry);
    const std::size_t last = path.rfind('/');
    if (last == std::string::npos) {
        return words(path);
    }
    const std::string name = path.substr(last + 1);
    const std::size_t before = path.rfind('/', last - 1);
    const std::size_t begin = before == std::string::npos ? 0 : before + 1;
    return name.size() > shortName ? words(name) : words(path.substr(begin, last - begin)) + ' ' + words(name);
}

} // namespace

SetValueReturnCode_e StyleActions::set(long entry, const std::vector<long>& objects, long object2,
                                       const StyleData& value)
{
    const Kernel& kernel = Kernel::instance();
    StyleStore& style = kernel.style();
    MacroRecorder::Call call(kernel.macroRecorder(), kernel.lock().isRecorded());
    const unsigned long before = style.changeStamp(entry);
    const SetValueReturnCode_e code = style.setMany(entry, objects, object2, value);
    if (style.changeStamp(entry) != before) {
        kernel.undoStack().nameStep(stepName(entry)); // unless who acts gave it one
        if (call.isDescribed()) {
            call.succeeded(command(entry, objects, object2, value));
        }
    }
    return code;
}

MacroCommand StyleActions::command(long entry, const std::vector<long>& objects, long object2, const StyleData& value)
{
    MacroCommand command{"StyleSet", {{"Path", stylePath(entry)}}};
    if (objects.size() == 1 && objects.front() >= 0) {
        command.add("Object", objects.front());
    } else if (objects.size() > 1) {
        command.add("Object", std::set<long>(objects.begin(), objects.end()));
    }
    if (object2 >= 0) {
        command.add("Object2", object2);
    }
    command.add("Value", macroValue(entry, value));
    return command;
}

StyleData StyleActions::value(long entry, const MacroCommand& command)
{
    const MacroValue* given = command.find("Value");
    const long* number = given ? std::get_if<long>(given) : nullptr;
    const auto* text = given ? std::get_if<std::string>(given) : nullptr;
    const StyleEntry& about = styleDescription(entry);
    switch (about.type) {
    case StyleType::Enumeration:
        if (const auto found =
                text ? enumeratorValue(styleEnumeration(about.enumeration), *text) : std::optional<long>()) {
            return *found;
        }
        [[fallthrough]];
    case StyleType::Flag:
    case StyleType::Integer:
        if (number) {
            return *number;
        }
        break;
    case StyleType::Double:
        return command.real("Value");
    case StyleType::String:
        if (text) {
            return *text;
        }
        break;
    }
    throw DataError(
        stylePathText(entry) + " is " + styleTypeText(about.type) + ", not " + (given ? macroText(*given) : "empty") +
        (about.type == StyleType::Enumeration ? ": " + enumeratorsText(styleEnumeration(about.enumeration)) : "") +
        '.');
}

bool StyleActions::run(const MacroCommand& command)
{
    const long entry = Kernel::instance().style().entry(command.text("Path").c_str());
    if (entry < 0) {
        throw DataError("There is no style value \"" + command.text("Path") + "\".");
    }
    std::vector<long> objects{-1};
    if (const MacroValue* object = command.find("Object")) {
        const auto* many = std::get_if<std::set<long>>(object);
        objects = many ? std::vector<long>(many->begin(), many->end()) : std::vector{command.integer("Object")};
    }
    const SetValueReturnCode_e code =
        set(entry, objects, command.find("Object2") ? command.integer("Object2") : -1, value(entry, command));
    if (code != SetValueReturnCode_Ok && code != SetValueReturnCode_Adjusted) {
        throw DataError(Kernel::instance().style().lastError());
    }
    return true;
}

} // namespace vantrix::kernel
