#pragma once

#include "toolbox/StyleValue.h"

namespace vantrix::toolbox {

/// A style value that knows whether its path is one of the host's. Where it is not, reads and writes through it answer
/// with the code for an unknown path.
class CheckedStyleValue : public StyleValue
{
public:
    explicit CheckedStyleValue(StyleValue const& value);

    /// The host's numbers of the path's names.
    RawArray<long> const& macroIDs() const { return m_ids; }

    /// The host's number of the style value, -1 when no style value has the path.
    long entry() const { return m_entry; }

    /// @param arguments  from setupGetValueArgList(), with a place for the value
    GetValueReturnCode_e styleGetLowLevel(ArgList const& arguments) const;

    /// @param arguments  from setupSetValueArgList(), with the value. Under the application lock.
    SetValueReturnCode_e styleSetLowLevel(ArgList const& arguments) const;

private:
    RawArray<long> m_ids;
    long m_entry = -1;
};

} // namespace vantrix::toolbox
