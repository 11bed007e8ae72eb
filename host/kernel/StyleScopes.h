#pragma once

#include "kernel/StyleStore.h"
#include "kernel/StyleValues.h"
#include "kernel/StyleVocabulary.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantrix::kernel {

class StateChanges;

/*
 * What the style store keeps: the values of the process and of every page and frame, and the stamps that tell when they
 * changed. Nothing is checked, nothing is recorded for undo; announcing a change is the caller's.
 */
class StyleScopes
{
public:
    explicit StyleScopes(StateChanges& changes);

    /* `index` is the object's place from 0; see styleIndex(). What was never set has the default. */
    void read(long scopeId, long entry, std::size_t index, StyleData& value) const;
    void readDefault(long entry, std::size_t index, StyleData& value) const;
    void write(long scopeId, long entry, std::size_t index, const StyleData& value);

    /* The values of a scope; null while nothing was set in it. */
    const StyleValues* find(long scopeId) const;

    /* Puts the values of a scope in place of what it has. */
    void replace(long scopeId, const StyleValues& values);

    /* Drops the values of a frame's objects with these numbers, in rising order, from 1; those behind move down. */
    void removeObjects(long frameId, std::string_view offset, const std::vector<long>& numbers);

    void remove(long scopeId);
    void copy(long from, long to);
    void clear();

    /* Moves whenever a value of the entry may have changed in any scope. */
    unsigned long stampOfEntry(long entry) const;

    /* Moves whenever a value of the scope changed; 0 while nothing was set in it. */
    unsigned long stampOfScope(long scopeId) const;

    /* Sends `StateChange_Style` and what the description announces besides; `object` is 0 for several or none. */
    void announce(long entry, long object);

    /* Sends what the descriptions of all values with that offset announce besides, once for each kind. */
    void announceObjects(std::string_view offset);

private:
    StyleValues& values(long scopeId, StyleScope scope);

    StateChanges& m_changes;
    std::array<StyleValues, 3> m_defaults;
    std::unordered_map<long, std::unique_ptr<StyleValues>> m_scopes;
    std::vector<unsigned long> m_stamps; /* one an entry */
    unsigned long m_commonStamp = 0;     /* moves when any entry may have changed */
};

} // namespace vantrix::kernel
