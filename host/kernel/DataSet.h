#pragma once

#include "kernel/Zone.h"
#include "kernel/macro/MacroCommand.h"

#include <memory>
#include <string>
#include <vector>

namespace vantrix::kernel {

/* A variable: its name, and whether it takes part. Its values are in the zones. */
struct Variable
{
    std::string name;
    bool enabled = true;
};

/*
 * Variables 1..V and zones 1..Z.
 *
 * A data set is a value: copying it copies pointers only. Frames hold a `std::shared_ptr<const DataSet>`; an action
 * copies the data set, changes the copy and hands it to Document::replaceDataSet(), which swaps it in for every frame
 * that shows it, records the step for undo and sends the state changes. What is never handed over changes nothing, so
 * that a cancelled or failed action needs no clean-up. Undo keeps the old pointer.
 */
class DataSet
{
public:
    /* `id` is a number that no other data set of the process has; copies keep it. */
    explicit DataSet(long id, std::string title = {});

    long id() const { return m_id; }

    std::string title;
    std::vector<Variable> variables;
    std::vector<std::shared_ptr<const Zone>> zones;
    std::vector<bool> zoneEnabled; /* as long as `zones` */

    std::vector<std::shared_ptr<const MacroCommand>> history; /* how it came to be; see DataHistory */

    long variableCount() const { return static_cast<long>(variables.size()); }
    long zoneCount() const { return static_cast<long>(zones.size()); }

    /* By number from 1. Null for a number out of range. */
    const Zone* zone(long number) const;
    const FieldArray* field(long zone, long variable) const;

    /* The number of the zone with an identity, see Zone::identity(); 0 when there is none. */
    long zoneNumber(long identity) const;

    /* The number of the variable with that name (case counts), 0 when there is none. */
    long variableNumber(const std::string& name) const;

    /* At the end, enabled. */
    void addZone(Zone zone);

private:
    long m_id;
};

} // namespace vantrix::kernel
