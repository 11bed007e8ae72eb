#pragma once

#include "api/VtxUtilArgList.h"

#include <string>

namespace vantrix::toolbox {

class Set;

/// A list of named arguments for the host functions whose names end in X. Appending a name again replaces its value.
/// Strings and sets are copied; what a pointer points to has to live until the call.
class ArgList
{
public:
    ArgList();
    ~ArgList();
    ArgList(ArgList&& other) noexcept;
    ArgList& operator=(ArgList&& other) noexcept;
    ArgList(ArgList const&) = delete;
    ArgList& operator=(ArgList const&) = delete;

    void clear();

    /// A flag, an integer or an enumeration.
    void appendArbParam(char const* name, long value);
    /// A place for the called function to write an integer to.
    void appendArbParamPtr(char const* name, long* value);
    void appendDouble(char const* name, double value);
    void appendDoublePtr(char const* name, double* value);
    void appendString(char const* name, std::string const& value);
    /// A place for a string of the host; release it with VtxUtilStringDealloc().
    void appendStringPtr(char const* name, char** value);
    void appendSet(char const* name, Set const& value);

    /// What the host functions take; stays with this list.
    VtxArgListHandle handle() const { return m_handle; }

private:
    VtxArgListHandle m_handle;
};

} // namespace vantrix::toolbox
