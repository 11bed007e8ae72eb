#include "kernel/DataSet.h"

#include <algorithm>

namespace vantrix::kernel {

DataSet::DataSet(long id, std::string titleText)
    : title(std::move(titleText))
    , m_id(id)
{}

const Zone* DataSet::zone(long number) const
{
    return number >= 1 && number <= zoneCount() ? zones[static_cast<std::size_t>(number - 1)].get() : nullptr;
}

const FieldArray* DataSet::field(long zoneNumber, long variable) const
{
    const Zone* found = zone(zoneNumber);
    if (!found || variable < 1 || variable > static_cast<long>(found->fields.size())) {
        return nullptr;
    }
    return &found->fields[static_cast<std::size_t>(variable - 1)];
}

long DataSet::zoneNumber(long identity) const
{
    const auto found =
        std::find_if(zones.begin(), zones.end(), [&](const auto& zone) { return zone->identity() == identity; });
    return found == zones.end() ? 0 : found - zones.begin() + 1;
}

long DataSet::variableNumber(const std::string& name) const
{
    const auto found =
        std::find_if(variables.begin(), variables.end(), [&](const Variable& v) { return v.name == name; });
    return found == variables.end() ? 0 : found - variables.begin() + 1;
}

void DataSet::addZone(Zone added)
{
    zones.push_back(std::make_shared<const Zone>(std::move(added)));
    zoneEnabled.push_back(true);
}

} // namespace vantrix::kernel
