#pragma once

#include "kernel/StyleStore.h"

#include <vector>

namespace vantrix::kernel {

struct MacroCommand;

/*
 * Style as it is changed on behalf of the user: like StyleStore::set(), and recorded in the macro under way. To be
 * called under the application lock.
 */
class StyleActions
{
public:
    /* `objects` holds first offsets, or nothing but -1 where the entry has none. */
    static SetValueReturnCode_e set(long entry, const std::vector<long>& objects, long object2, const StyleData& value);

    /* The same as a command of a macro, and what such a command says. Throws DataError for a path that is not known and
     * a value of another type. */
    static MacroCommand command(long entry, const std::vector<long>& objects, long object2, const StyleData& value);
    static bool run(const MacroCommand& command);

    /* The value of an argument of a macro as one of an entry. Throws DataError, which names the enumerators of an
     * enumeration, when it is of another type. */
    static StyleData value(long entry, const MacroCommand& command);
};

} // namespace vantrix::kernel
