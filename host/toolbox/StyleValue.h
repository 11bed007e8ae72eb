#pragma once

#include "api/VtxUtilStyle.h"
#include "toolbox/ArgList.h"
#include "toolbox/RawArray.h"
#include "toolbox/StringList.h"

#include <string>

namespace vantrix::toolbox {

class Set;

/// The address of one style value of the host, a path of one to seven names, and the steps of reading and writing it.
/// The offsets of a call tell which of several objects is meant; -1 where the path has none.
class StyleValue
{
public:
    /// @throws vantrix::InvalidArgumentException for an empty path and for one of more than seven names
    explicit StyleValue(StringList const& path);
    explicit StyleValue(char const* name1, char const* name2 = nullptr, char const* name3 = nullptr,
                        char const* name4 = nullptr, char const* name5 = nullptr, char const* name6 = nullptr,
                        char const* name7 = nullptr);

    StringList const& path() const { return m_path; }

    /// The host's numbers of the names; -1 for a name that the host does not know.
    void initMacroIDsfromStyleValueNames(RawArray<long>& ids) const;

    /// The host's number of the style value; -1 when no style value has the path.
    static long findEntry(RawArray<long> const& ids);

    /// Clears the list and fills in what a get needs besides the place for the value.
    static void setupGetValueArgList(RawArray<long> const& ids, long first, long second, ArgList& arguments);

    /// Clears the list and fills in what a set needs besides the value.
    /// @param objects  the objects to write to in place of the first offset, or null
    static void setupSetValueArgList(RawArray<long> const& ids, Set const* objects, long first, long second,
                                     AssignOp_e assignOp, ArgList& arguments);

    /// Reads with a list from setupGetValueArgList(). The value is left as it was on any code but Ok.
    static GetValueReturnCode_e getFinalValue(bool* value, ArgList& arguments);
    static GetValueReturnCode_e getFinalValue(long* value, ArgList& arguments);
    static GetValueReturnCode_e getFinalValue(double* value, ArgList& arguments);
    static GetValueReturnCode_e getFinalValue(std::string* value, ArgList& arguments);

    /// Writes with a list from setupSetValueArgList(), under the application lock.
    static SetValueReturnCode_e setFinalValue(bool value, ArgList& arguments);
    static SetValueReturnCode_e setFinalValue(long value, ArgList& arguments);
    static SetValueReturnCode_e setFinalValue(double value, ArgList& arguments);
    static SetValueReturnCode_e setFinalValue(std::string const& value, ArgList& arguments);

    static bool returnCodeOk(GetValueReturnCode_e code);
    /// An adjusted value counts as success.
    static bool returnCodeOk(SetValueReturnCode_e code);

    /// Reads the value at once, all steps in one.
    template<typename T>
    GetValueReturnCode_e getValue(T* value, long first = -1, long second = -1) const
    {
        ArgList arguments;
        setupGetValueArgList(macroIDs(), first, second, arguments);
        return getFinalValue(value, arguments);
    }

    /// Writes the value at once, all steps in one, under the application lock.
    template<typename T>
    SetValueReturnCode_e setValue(T const& value, long first = -1, long second = -1) const
    {
        ArgList arguments;
        setupSetValueArgList(macroIDs(), nullptr, first, second, AssignOp_Default, arguments);
        return setFinalValue(value, arguments);
    }

private:
    RawArray<long> macroIDs() const;

    StringList m_path;
};

} // namespace vantrix::toolbox
