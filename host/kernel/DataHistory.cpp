#include "kernel/DataHistory.h"

#include "kernel/DataError.h"
#include "kernel/DataReader.h"
#include "kernel/SampleData.h"

#include <map>

namespace vantrix::kernel {

namespace {

void addCoordinates(MacroCommand& command, const CoordinateVariables& coordinates)
{
    command.add("XVariable", coordinates[0]);
    command.add("YVariable", coordinates[1]);
    command.add("ZVariable", coordinates[2]);
}

template<class Description>
void addZone(const Description& description, const MacroCommand& command, DataSet& dataSet,
             const ReportProgress& progress)
{
    if (dataSet.variables.empty()) {
        dataSet.variables = {{"X", true}, {"Y", true}};
        if (description.kMax > 1) {
            dataSet.variables.push_back({"Z", true});
        }
    }
    const CoordinateVariables coordinates{command.integer("XVariable"), command.integer("YVariable"),
                                          command.integer("ZVariable")};
    for (const long variable : coordinates) {
        if (variable < 0 || variable > dataSet.variableCount()) {
            throw DataError(command.name + ": there is no variable " + std::to_string(variable) + '.');
        }
    }
    dataSet.addZone(makeZone(description, dataSet.variableCount(), coordinates, progress));
}

CircularZone circularZone(const MacroCommand& command)
{
    return {
        command.integer("IMax"), command.integer("JMax"), command.integer("KMax"),
        command.real("XOrigin"), command.real("YOrigin"), command.real("Radius"),
        command.real("ZMin"),    command.real("ZMax"),    static_cast<FieldDataType_e>(command.integer("DataType"))};
}

RectangularZone rectangularZone(const MacroCommand& command)
{
    return {command.integer("IMax"), command.integer("JMax"),
            command.integer("KMax"), command.real("XMin"),
            command.real("YMin"),    command.real("ZMin"),
            command.real("XMax"),    command.real("YMax"),
            command.real("ZMax"),    static_cast<FieldDataType_e>(command.integer("DataType"))};
}

void readFiles(const MacroCommand& command, DataSet& dataSet, const ReportProgress& progress)
{
    const MacroValue* value = command.find("Files");
    const auto* files = value ? std::get_if<std::vector<std::string>>(value) : nullptr;
    if (!files) {
        throw DataError("DataRead: \"Files\" has to be names of files in brackets.");
    }
    DataReader::read(*files, dataSet, progress);
}

void readSample(const MacroCommand& command, DataSet& dataSet, const ReportProgress& /*progress*/)
{
    SampleData::make(command.text("Name"), dataSet);
}

void addCircularZone(const MacroCommand& command, DataSet& dataSet, const ReportProgress& progress)
{
    addZone(circularZone(command), command, dataSet, progress);
}

void addRectangularZone(const MacroCommand& command, DataSet& dataSet, const ReportProgress& progress)
{
    addZone(rectangularZone(command), command, dataSet, progress);
}

void deleteNamedZones(const MacroCommand& command, DataSet& dataSet, const ReportProgress& /*progress*/)
{
    const MacroValue* value = command.find("Zones");
    const auto* zones = value ? std::get_if<std::set<long>>(value) : nullptr;
    if (!zones || zones->empty() || *zones->rbegin() > dataSet.zoneCount()) {
        throw DataError("DataSetDeleteZone: \"Zones\" has to be a set of zones that are there.");
    }
    DataHistory::deleteZones(*zones, dataSet);
}

using Maker = void (*)(const MacroCommand& command, DataSet& dataSet, const ReportProgress& progress);

const std::map<std::string_view, Maker>& makers()
{
    static const std::map<std::string_view, Maker> table{
        {"DataRead", &readFiles},
        {"DataReadSample", &readSample},
        {"CreateCircularZone", &addCircularZone},
        {"CreateRectangularZone", &addRectangularZone},
        {"DataSetDeleteZone", &deleteNamedZones},
    };
    return table;
}

} // namespace

MacroCommand DataHistory::reading(const std::vector<std::string>& files)
{
    return {"DataRead", {{"Files", files}}};
}

MacroCommand DataHistory::readingSample(const std::string& name)
{
    return {"DataReadSample", {{"Name", name}}};
}

MacroCommand DataHistory::creating(const CircularZone& zone, const CoordinateVariables& coordinates)
{
    MacroCommand command{"CreateCircularZone",
                         {{"IMax", zone.iMax},
                          {"JMax", zone.jMax},
                          {"KMax", zone.kMax},
                          {"XOrigin", zone.xOrigin},
                          {"YOrigin", zone.yOrigin},
                          {"Radius", zone.radius},
                          {"ZMin", zone.zMin},
                          {"ZMax", zone.zMax},
                          {"DataType", static_cast<long>(zone.dataType)}}};
    addCoordinates(command, coordinates);
    return command;
}

MacroCommand DataHistory::creating(const RectangularZone& zone, const CoordinateVariables& coordinates)
{
    MacroCommand command{"CreateRectangularZone",
                         {{"IMax", zone.iMax},
                          {"JMax", zone.jMax},
                          {"KMax", zone.kMax},
                          {"XMin", zone.xMin},
                          {"YMin", zone.yMin},
                          {"ZMin", zone.zMin},
                          {"XMax", zone.xMax},
                          {"YMax", zone.yMax},
                          {"ZMax", zone.zMax},
                          {"DataType", static_cast<long>(zone.dataType)}}};
    addCoordinates(command, coordinates);
    return command;
}

MacroCommand DataHistory::deleting(const std::set<long>& zones)
{
    return {"DataSetDeleteZone", {{"Zones", zones}}};
}

void DataHistory::deleteZones(const std::set<long>& zones, DataSet& dataSet)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < dataSet.zones.size(); ++i) {
        if (!zones.contains(static_cast<long>(i) + 1)) {
            dataSet.zones[kept] = dataSet.zones[i];
            dataSet.zoneEnabled[kept] = dataSet.zoneEnabled[i];
            ++kept;
        }
    }
    dataSet.zones.resize(kept);
    dataSet.zoneEnabled.resize(kept);
}

bool DataHistory::knows(std::string_view name)
{
    return makers().contains(name);
}

void DataHistory::apply(const MacroCommand& command, DataSet& dataSet, const ReportProgress& progress)
{
    const auto maker = makers().find(command.name);
    if (maker == makers().end()) {
        throw DataError("\"" + command.name + "\" is not known as a way to make data.");
    }
    maker->second(command, dataSet, progress);
    dataSet.history.push_back(std::make_shared<const MacroCommand>(command));
}

} // namespace vantrix::kernel
