#include "kernel/VariableFiles.h"

#include "kernel/DataError.h"
#include "kernel/DataReader.h"

#include <utility>

namespace vantrix::kernel {

namespace {

unsigned long reads = 0;

} // namespace

VariableFiles::VariableFiles(const std::vector<std::string>& files)
{
    for (const std::string& file : files) {
        m_files.push_back(describe(file));
    }
}

VariableFiles::File VariableFiles::describe(const std::string& name)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(name, error);
    return {name, size, std::filesystem::last_write_time(name, error)};
}

void VariableFiles::attach(DataSet& dataSet, const std::vector<std::string>& files)
{
    const auto source = std::make_shared<VariableFiles>(files);
    for (std::size_t zone = 0; zone < dataSet.zones.size(); ++zone) {
        const std::vector<FieldArray>& fields = dataSet.zones[zone]->fields;
        auto changed = std::make_shared<Zone>(*dataSet.zones[zone]);
        for (std::size_t variable = 0; variable < fields.size(); ++variable) {
            if (fields[variable].values) {
                changed->fields[variable].loaded = fields[variable].values.Get();
                changed->fields[variable].loader = [source, zone, name = dataSet.variables[variable].name] {
                    return source->read(name, zone + 1);
                };
            }
        }
        dataSet.zones[zone] = std::move(changed);
    }
}

void VariableFiles::expectUnchanged(const std::string& variable) const
{
    for (const File& file : m_files) {
        if (describe(file.name) != file) {
            throw DataError("The variable \"" + variable + "\" is not in memory, and the file \"" + file.name +
                            "\" that it would be read from has changed or is gone. Open the data again.");
        }
    }
}

vtkSmartPointer<vtkDataArray> VariableFiles::read(const std::string& variable, std::size_t zone)
{
    if (m_variable != variable || zone > m_values.size() || !m_values[zone - 1]) {
        m_values.clear();
        m_variable = variable;
        expectUnchanged(variable);
        std::vector<std::string> names;
        for (const File& file : m_files) {
            names.push_back(file.name);
        }
        DataSet again(0);
        DataReader::readVariable(names, variable, again);
        for (long number = 1; number <= again.zoneCount(); ++number) {
            const FieldArray* field = again.field(number, again.variableNumber(variable));
            m_values.push_back(field ? field->values : nullptr);
        }
        ++reads;
        if (zone > m_values.size() || !m_values[zone - 1]) {
            throw DataError("The variable \"" + variable + "\" cannot be read from \"" + m_files.front().name +
                            "\" any more. Open the data again.");
        }
    }
    /* Whoever asked keeps the values; they are not to stay here when he lets them go. */
    return std::exchange(m_values[zone - 1], nullptr);
}

unsigned long VariableFiles::readCount()
{
    return reads;
}

} // namespace vantrix::kernel
