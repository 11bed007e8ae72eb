#pragma once

#include "kernel/DataSet.h"
#include "kernel/OrderedZones.h"
#include "kernel/Progress.h"

#include <set>
#include <string_view>
#include <vector>

namespace vantrix::kernel {

/*
 * How a data set came to be, as commands that make the same one again: which files were read, which zones created and
 * deleted. Layouts hold this in place of the data. Whatever changes a data set adds its command to `DataSet::history`.
 */
class DataHistory
{
public:
    static MacroCommand reading(const std::vector<std::string>& files);
    static MacroCommand readingSample(const std::string& name);
    static MacroCommand creating(const CircularZone& zone, const CoordinateVariables& coordinates);
    static MacroCommand creating(const RectangularZone& zone, const CoordinateVariables& coordinates);
    static MacroCommand deleting(const std::set<long>& zones);

    /* Whether a command of that name makes data. */
    static bool knows(std::string_view name);

    /* Does a command to a data set that nobody shows yet, and keeps it in the history. Throws DataError for one that
     * is not known or cannot be done, ActionCancelled when `progress` asked to stop. */
    static void apply(const MacroCommand& command, DataSet& dataSet, const ReportProgress& progress);

    /* Deletes zones of a data set that nobody shows yet. */
    static void deleteZones(const std::set<long>& zones, DataSet& dataSet);
};

} // namespace vantrix::kernel
