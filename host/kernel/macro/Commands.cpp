#include "kernel/macro/Commands.h"

#include "api/VtxUtil.h"
#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/Enumerators.h"
#include "kernel/GeometryValues.h"
#include "kernel/Kernel.h"
#include "kernel/StyleActions.h"
#include "kernel/TextValues.h"
#include "kernel/interface/Boundary.h"
#include "kernel/macro/CommandArguments.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace vantrix::kernel {

namespace {

using Parameters = std::vector<Parameter>;

template<auto Function>
struct Caller;

template<class Result, class... Arguments, Result (*Function)(Arguments...)>
struct Caller<Function>
{
    static bool run(const MacroCommand& command, const Command& about)
    {
        return call(command, about.parameters, std::index_sequence_for<Arguments...>());
    }

    template<std::size_t... Index>
    static bool call([[maybe_unused]] const MacroCommand& command, [[maybe_unused]] const Parameters& names,
                     std::index_sequence<Index...> /*unused*/)
    {
        [[maybe_unused]] std::tuple<FromMacro<Arguments>...> arguments{
            FromMacro<Arguments>(command, names[Index].name)...};
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
Command listCommand(const char* name, Parameters parameters)
{
    return {name, reinterpret_cast<const void*>(Function), std::move(parameters), &runWithList<Function>};
}

/* The values of an object of a frame, and which one it is. */
template<class Object>
Parameters valuesOf()
{
    Parameters parameters{ObjectTraits<Object>::handleArgument};
    for (const ObjectValue<Object>& value : ObjectTraits<Object>::values()) {
        parameters.push_back({value.name, value.enumeration});
    }
    return parameters;
}

bool setStyle(const MacroCommand& command, const Command& /*about*/)
{
    return StyleActions::run(command);
}

bool readData(const MacroCommand& command, const Command& /*about*/)
{
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
            "CreateCircularZone",
            {"IMax", "JMax", "KMax", "XOrigin", "YOrigin", "Radius", "ZMin", "ZMax", {"DataType", "FieldDataType_e"}}),
        command<&VtxUtilCreateRectangularZone>(
            "CreateRectangularZone",
            {"IMax", "JMax", "KMax", "XMin", "YMin", "ZMin", "XMax", "YMax", "ZMax", {"DataType", "FieldDataType_e"}}),
        command<&VtxUtilFrameCreate>("FrameCreate", {"Left", "Top", "Width", "Height"}),
        command<&VtxUtilFrameAttachDataSet>("FrameAttachDataSet", {"Number"}),
        command<&VtxUtilFrameCreateOnSameData>("FrameCreateOnSameData"),
        command<&VtxUtilFrameSetRect>("FrameSetRect", {frameArgument, "Left", "Top", "Width", "Height"}),
        command<&VtxUtilFrameDelete>("FrameDelete", {frameArgument}),
        command<&VtxUtilFrameActivate>("FrameActivate", {frameArgument}),
        command<&VtxUtilFramePop>("FramePop", {frameArgument}),
        command<&VtxUtilFramePush>("FramePush", {frameArgument}),
        command<&VtxUtilFrameSetPlotType>("FrameSetPlotType", {{"PlotType", "PlotType_e"}}),
        command<&VtxUtilFrameSetBackgroundColor>("FrameSetBackgroundColor", {"Color"}),
        command<&VtxUtilPageCreate>("PageCreate"),
        command<&VtxUtilPageDelete>("PageDelete", {"Page"}),
        command<&VtxUtilPageActivate>("PageActivate", {"Page"}),
        command<&VtxUtilLineMapCreate>("LineMapCreate", {"Zone", "XVariable", "YVariable"}),
        command<&VtxUtilLineMapDelete>("LineMapDelete", {"LineMaps"}),
        listCommand<&VtxUtilTextSetX>("TextSet", valuesOf<Text>()),
        command<&VtxUtilTextSetHeight>("TextSetHeight", {textArgument, "Height"}),
        command<&VtxUtilTextDelete>("TextDelete", {textArgument}),
        listCommand<&VtxUtilGeometrySetX>("GeometrySet", valuesOf<Geometry>()),
        command<&VtxUtilGeometryDelete>("GeometryDelete", {geometryArgument}),
        listCommand<&VtxUtilStreamtraceAddX>("StreamtraceAdd", {"X1",
                                                                "Y1",
                                                                "Z1",
                                                                "X2",
                                                                "Y2",
                                                                "Z2",
                                                                "Zone",
                                                                "I1",
                                                                "J1",
                                                                "K1",
                                                                "I2",
                                                                "J2",
                                                                "K2",
                                                                "NumPts",
                                                                {"StreamType", "Streamtrace_e"},
                                                                {"StreamDirection", "StreamDir_e"},
                                                                {"DistributionRegion", "DistributionRegion_e"}}),
        command<&VtxUtilStreamtraceDeleteRange>("StreamtraceDeleteRange", {"First", "Last"}),
        command<&VtxUtilStreamtraceDeleteAll>("StreamtraceDeleteAll"),
        command<&VtxUtilViewAxisFit>("ViewAxisFit", {"Axis", "AxisNum"}),
        command<&VtxUtilViewAxisNiceFit>("ViewAxisNiceFit", {"Axis", "AxisNum"}),
        command<&VtxUtilViewAxisFitToEntireCircle>("ViewAxisFitToEntireCircle", {"Axis", "AxisNum"}),
        command<&VtxUtilViewAxisMakeCurValsNice>("ViewAxisMakeCurValsNice", {"Axis", "AxisNum"}),
        listCommand<&VtxUtilViewX>("View", {{"ViewOP", "ViewOp_e"}, "Axis", "AxisNum", "ConsiderBlanking"}),
        command<&VtxUtilReset3DScaleFactors>("Reset3DScaleFactors"),
        listCommand<&VtxUtilProbeAtFieldPositionX>("ProbeAtFieldPosition",
                                                   {"X", "Y", "Z", "SearchVolume", "NearestPoint"}),
        listCommand<&VtxUtilProbeAtFieldIndexX>("ProbeAtFieldIndex", {"I", "J", "K", "Zone"}),
        listCommand<&VtxUtilProbeAtLinePositionX>("ProbeAtLinePosition", {"Axis", "AxisNum", "Position"}),
        listCommand<&VtxUtilProbeAtLineIndexX>("ProbeAtLineIndex", {"I", "J", "K", "LineMap"}),
        command<&VtxUtilMouseSetMode>("MouseSetMode", {{"Mode", "MouseMode_e"}}),
        command<&VtxUtilPickClear>("PickClear"),
        command<&VtxUtilPickFrame>("PickFrame", {frameArgument}),
        command<&VtxUtilPickZone>("PickZone", {"Zone"}),
        command<&VtxUtilPickText>("PickText", {textArgument}),
        command<&VtxUtilPickGeometry>("PickGeometry", {geometryArgument}),
        command<&VtxUtilPickLineMap>("PickLineMap", {"LineMap"}),
        command<&VtxUtilPickStreamtrace>("PickStreamtrace", {"Streamtrace"}),
        command<&VtxUtilPickAxis>("PickAxis", {"Axis", "AxisNumber", {"Part", "AxisSubObject_e"}}),
        command<&VtxUtilPickLegend>("PickLegend", {{"Legend", "PickObject_e"}}),
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

MacroCommand checked(MacroCommand command, const Command& about)
{
    for (auto& [name, value] : command.arguments) {
        const auto parameter = std::ranges::find(about.parameters, std::string_view(name), &Parameter::name);
        if (parameter == about.parameters.end()) {
            std::string known;
            for (const Parameter& each : about.parameters) {
                known += (known.empty() ? "" : ", ") + std::string(each.name);
            }
            throw DataError(command.name + " has no \"" + name + "\"; it has " + (known.empty() ? "nothing" : known) +
                            '.');
        }
        const auto* text = std::get_if<std::string>(&value);
        if (text && parameter->enumeration) {
            const StyleEnumeration& enumeration = enumerationNamed(parameter->enumeration);
            const std::optional<long> number = enumeratorValue(enumeration, *text);
            if (!number) {
                throw DataError(command.name + ": \"" + name + "\" cannot be " + *text + ": " +
                                enumeratorsText(enumeration) + '.');
            }
            value = *number;
        }
    }
    return command;
}

} // namespace vantrix::kernel
