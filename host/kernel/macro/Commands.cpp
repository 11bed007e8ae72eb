#include "kernel/macro/Commands.h"

#include "api/VtxUtil.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/StyleActions.h"
#include "kernel/interface/Boundary.h"
#include "kernel/macro/CommandArguments.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace vantrix::kernel {

namespace {

using Parameters = std::vector<const char*>;

template<auto Function>
struct Caller;

template<class Result, class... Arguments, Result (*Function)(Arguments...)>
struct Caller<Function>
{
    static bool run(const MacroCommand& command, const Command& about)
    {
        checkArguments(command, about);
        return call(command, about.parameters, std::index_sequence_for<Arguments...>());
    }

    template<std::size_t... Index>
    static bool call([[maybe_unused]] const MacroCommand& command, [[maybe_unused]] const Parameters& names,
                     std::index_sequence<Index...> /*unused*/)
    {
        [[maybe_unused]] std::tuple<FromMacro<Arguments>...> arguments{FromMacro<Arguments>(command, names[Index])...};
        return boundary::isSuccess(Function(std::get<Index>(arguments).get()...));
    }
};

template<auto Function>
Command command(const char* name, Parameters parameters = {})
{
    return {name, reinterpret_cast<const void*>(Function), std::move(parameters), &Caller<Function>::run};
}

template<auto Function>
Command stepOfItsOwn(const char* name, Parameters parameters = {})
{
    Command about = command<Function>(name, std::move(parameters));
    about.isStepOfItsOwn = true;
    return about;
}

template<auto Function>
bool runWithList(const MacroCommand& command, const Command& /*about*/)
{
    VtxArgList list = listFromMacro(command);
    return boundary::isSuccess(Function(&list));
}

template<auto Function>
Command listCommand(const char* name)
{
    Command about{name, reinterpret_cast<const void*>(Function), {}, &runWithList<Function>};
    about.takesList = true;
    return about;
}

bool setStyle(const MacroCommand& command, const Command& about)
{
    checkArguments(command, about);
    return StyleActions::run(command);
}

bool readData(const MacroCommand& command, const Command& about)
{
    checkArguments(command, about);
    const MacroValue* value = command.find("Files");
    const auto* files = value ? std::get_if<std::vector<std::string>>(value) : nullptr;
    if (!files) {
        throw DataError("DataRead: \"Files\" has to be names of files in brackets, as in [\"wing.vtu\"].");
    }
    std::vector<const char*> names;
    for (const std::string& file : *files) {
        names.push_back(file.c_str());
    }
    return VtxUtilDataRead(names.data(), static_cast<long>(names.size()));
}

/* Whether an argument says what is given a value, not which. */
bool saysWhat(const MacroCommand& command, const std::string& argument)
{
    return command.name == "StyleSet" ? argument != "Value" : isIdentifier(argument);
}

} // namespace

const std::vector<Command>& commands()
{
    static const std::vector<Command> table{
        {"StyleSet",
         reinterpret_cast<const void*>(&VtxUtilStyleSetLowLevelX),
         {"Path", "Object", "Object2", "Value"},
         &setStyle},
        {"DataRead", reinterpret_cast<const void*>(&VtxUtilDataRead), {"Files"}, &readData},
        command<&VtxUtilDataReadSample>("DataReadSample", {"Name"}),
        command<&VtxUtilDataSetDeleteZone>("DataSetDeleteZone", {"Zones"}),
        command<&VtxUtilDataValueLoad>("DataValueLoad", {"Zone", "Variables"}),
        command<&VtxUtilCreateCircularZone>(
            "CreateCircularZone", {"IMax", "JMax", "KMax", "XOrigin", "YOrigin", "Radius", "ZMin", "ZMax", "DataType"}),
        command<&VtxUtilCreateRectangularZone>("CreateRectangularZone", {"IMax", "JMax", "KMax", "XMin", "YMin", "ZMin",
                                                                         "XMax", "YMax", "ZMax", "DataType"}),
        command<&VtxUtilFrameCreate>("FrameCreate", {"Left", "Top", "Width", "Height"}),
        command<&VtxUtilFrameAttachDataSet>("FrameAttachDataSet", {"Number"}),
        command<&VtxUtilFrameCreateOnSameData>("FrameCreateOnSameData"),
        command<&VtxUtilFrameSetRect>("FrameSetRect", {frameArgument, "Left", "Top", "Width", "Height"}),
        command<&VtxUtilFrameDelete>("FrameDelete", {frameArgument}),
        command<&VtxUtilFrameActivate>("FrameActivate", {frameArgument}),
        command<&VtxUtilFramePop>("FramePop", {frameArgument}),
        command<&VtxUtilFramePush>("FramePush", {frameArgument}),
        command<&VtxUtilFrameSetPlotType>("FrameSetPlotType", {"PlotType"}),
        command<&VtxUtilFrameSetBackgroundColor>("FrameSetBackgroundColor", {"Color"}),
        command<&VtxUtilPageCreate>("PageCreate"),
        command<&VtxUtilPageDelete>("PageDelete", {"Page"}),
        command<&VtxUtilPageActivate>("PageActivate", {"Page"}),
        command<&VtxUtilLineMapCreate>("LineMapCreate", {"Zone", "XVariable", "YVariable"}),
        command<&VtxUtilLineMapDelete>("LineMapDelete", {"LineMaps"}),
        listCommand<&VtxUtilTextSetX>("TextSet"),
        command<&VtxUtilTextSetHeight>("TextSetHeight", {textArgument, "Height"}),
        command<&VtxUtilTextDelete>("TextDelete", {textArgument}),
        listCommand<&VtxUtilGeometrySetX>("GeometrySet"),
        command<&VtxUtilGeometryDelete>("GeometryDelete", {geometryArgument}),
        listCommand<&VtxUtilStreamtraceAddX>("StreamtraceAdd"),
        command<&VtxUtilStreamtraceDeleteRange>("StreamtraceDeleteRange", {"First", "Last"}),
        command<&VtxUtilStreamtraceDeleteAll>("StreamtraceDeleteAll"),
        command<&VtxUtilViewAxisFit>("ViewAxisFit", {"Axis", "AxisNum"}),
        command<&VtxUtilViewAxisNiceFit>("ViewAxisNiceFit", {"Axis", "AxisNum"}),
        command<&VtxUtilViewAxisFitToEntireCircle>("ViewAxisFitToEntireCircle", {"Axis", "AxisNum"}),
        command<&VtxUtilViewAxisMakeCurValsNice>("ViewAxisMakeCurValsNice", {"Axis", "AxisNum"}),
        listCommand<&VtxUtilViewX>("View"),
        command<&VtxUtilReset3DScaleFactors>("Reset3DScaleFactors"),
        listCommand<&VtxUtilProbeAtFieldPositionX>("ProbeAtFieldPosition"),
        listCommand<&VtxUtilProbeAtFieldIndexX>("ProbeAtFieldIndex"),
        listCommand<&VtxUtilProbeAtLinePositionX>("ProbeAtLinePosition"),
        listCommand<&VtxUtilProbeAtLineIndexX>("ProbeAtLineIndex"),
        command<&VtxUtilMouseSetMode>("MouseSetMode", {"Mode"}),
        command<&VtxUtilPickClear>("PickClear"),
        command<&VtxUtilPickFrame>("PickFrame", {frameArgument}),
        command<&VtxUtilPickZone>("PickZone", {"Zone"}),
        command<&VtxUtilPickText>("PickText", {textArgument}),
        command<&VtxUtilPickGeometry>("PickGeometry", {geometryArgument}),
        command<&VtxUtilPickLineMap>("PickLineMap", {"LineMap"}),
        command<&VtxUtilPickStreamtrace>("PickStreamtrace", {"Streamtrace"}),
        command<&VtxUtilPickAxis>("PickAxis", {"Axis", "AxisNumber", "Part"}),
        command<&VtxUtilPickLegend>("PickLegend", {"Legend"}),
        command<&VtxUtilPickAtPosition>("PickAtPosition", {"X", "Y", "Collect"}),
        command<&VtxUtilPickDelete>("PickDelete"),
        stepOfItsOwn<&VtxUtilUndo>("Undo"),
        stepOfItsOwn<&VtxUtilRedo>("Redo"),
        stepOfItsOwn<&VtxUtilLayoutNew>("LayoutNew"),
        stepOfItsOwn<&VtxUtilLayoutSave>("LayoutSave", {"File"}),
        stepOfItsOwn<&VtxUtilLayoutOpen>("LayoutOpen", {"File"}),
    };
    return table;
}

const Command* commandNamed(std::string_view name)
{
    const auto found = std::ranges::find_if(commands(), [&](const Command& each) { return each.name == name; });
    return found != commands().end() ? &*found : nullptr;
}

const Command& commandOf(const void* function)
{
    const auto found = std::ranges::find(commands(), function, &Command::function);
    if (found == commands().end()) {
        throw std::logic_error("A function that changes state is no command of macros.");
    }
    return *found;
}

bool isValue(const MacroCommand& command)
{
    static const std::set<std::string_view> setting{"StyleSet", "FrameSetRect", "TextSet", "TextSetHeight",
                                                    "GeometrySet"};
    return setting.contains(command.name) &&
           std::ranges::any_of(command.arguments, [&](const auto& each) { return saysWhat(command, each.first); });
}

bool replaces(const MacroCommand& later, const MacroCommand& earlier)
{
    const auto isSame = [&](const MacroCommand::Argument& one, const MacroCommand::Argument& other) {
        return one.first == other.first && (one.second == other.second || !saysWhat(later, one.first));
    };
    return isValue(later) && later.name == earlier.name &&
           std::ranges::equal(later.arguments, earlier.arguments, isSame);
}

void checkArguments(const MacroCommand& command, const Command& about)
{
    for (const auto& [name, value] : command.arguments) {
        if (std::ranges::find(about.parameters, std::string_view(name)) == about.parameters.end()) {
            std::string known;
            for (const char* parameter : about.parameters) {
                known += (known.empty() ? "" : ", ") + std::string(parameter);
            }
            throw DataError(command.name + " has no \"" + name + "\"; it has " + (known.empty() ? "nothing" : known) +
                            '.');
        }
    }
}

} // namespace vantrix::kernel
