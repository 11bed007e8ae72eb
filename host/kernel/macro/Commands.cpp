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
        command<&VtxUtilFrameSetRect>("FrameSetRect", {"Frame", "Left", "Top", "Width", "Height"}),
        command<&VtxUtilFrameDelete>("FrameDelete", {"Frame"}),
        command<&VtxUtilFrameActivate>("FrameActivate", {"Frame"}),
        command<&VtxUtilFramePop>("FramePop", {"Frame"}),
        command<&VtxUtilFramePush>("FramePush", {"Frame"}),
        command<&VtxUtilFrameSetPlotType>("FrameSetPlotType", {"PlotType"}),
        command<&VtxUtilFrameSetBackgroundColor>("FrameSetBackgroundColor", {"Color"}),
        command<&VtxUtilPageCreate>("PageCreate"),
        command<&VtxUtilPageDelete>("PageDelete", {"Page"}),
        command<&VtxUtilPageActivate>("PageActivate", {"Page"}),
        command<&VtxUtilLineMapCreate>("LineMapCreate", {"Zone", "XVariable", "YVariable"}),
        command<&VtxUtilLineMapDelete>("LineMapDelete", {"LineMaps"}),
        command<&VtxUtilMouseSetMode>("MouseSetMode", {"Mode"}),
        command<&VtxUtilPickClear>("PickClear"),
        command<&VtxUtilPickFrame>("PickFrame", {"Frame"}),
        command<&VtxUtilPickZone>("PickZone", {"Zone"}),
        command<&VtxUtilPickText>("PickText", {"Text"}),
        command<&VtxUtilPickGeometry>("PickGeometry", {"Geometry"}),
        command<&VtxUtilPickLineMap>("PickLineMap", {"LineMap"}),
        command<&VtxUtilPickAxis>("PickAxis", {"Axis", "AxisNumber", "Part"}),
        command<&VtxUtilPickLegend>("PickLegend", {"Legend"}),
        command<&VtxUtilPickAtPosition>("PickAtPosition", {"X", "Y", "Collect"}),
        command<&VtxUtilPickDelete>("PickDelete"),
        stepOfItsOwn<&VtxUtilUndo>("Undo"),
        stepOfItsOwn<&VtxUtilRedo>("Redo"),
        stepOfItsOwn<&VtxUtilLayoutNew>("LayoutNew"),
        stepOfItsOwn<&VtxUtilLayoutOpen>("LayoutOpen", {"File"}),
    };
    return table;
}

/* The thing that a command gives a value: all its arguments but the value itself. */
std::size_t identitySize(const MacroCommand& command)
{
    if (command.name == "StyleSet") {
        return command.arguments.size() - 1;
    }
    return command.name == "FrameSetRect" ? 1 : 0;
}

} // namespace

long framePosition(long frameId)
{
    const Page* page = Kernel::instance().document().activePage();
    if (page) {
        for (std::size_t i = 0; i < page->frames.size(); ++i) {
            if (page->frames[i]->id() == frameId) {
                return static_cast<long>(i) + 1;
            }
        }
    }
    return 0;
}

long frameAtPosition(long position)
{
    const long id = VtxUtilFrameGetIdAt(position);
    if (id == 0) {
        throw DataError("There is no frame " + std::to_string(position) + " on the active page, which has " +
                        std::to_string(VtxUtilFrameGetCount()) + '.');
    }
    return id;
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
    return identitySize(command) > 0;
}

bool replaces(const MacroCommand& later, const MacroCommand& earlier)
{
    const std::size_t size = identitySize(later);
    return size > 0 && later.name == earlier.name && identitySize(earlier) == size &&
           std::equal(later.arguments.begin(), later.arguments.begin() + static_cast<std::ptrdiff_t>(size),
                      earlier.arguments.begin());
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
