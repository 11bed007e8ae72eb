#include "toolbox/CheckedStyleValue.h"

namespace vantrix::toolbox {

CheckedStyleValue::CheckedStyleValue(StyleValue const& value)
    : StyleValue(value)
{
    initMacroIDsfromStyleValueNames(m_ids);
    m_entry = findEntry(m_ids);
}

GetValueReturnCode_e CheckedStyleValue::styleGetLowLevel(ArgList const& arguments) const
{
    return m_entry >= 0 ? VtxUtilStyleGetLowLevelX(arguments.handle()) : GetValueReturnCode_UnknownPath;
}

SetValueReturnCode_e CheckedStyleValue::styleSetLowLevel(ArgList const& arguments) const
{
    // A write of an unknown path goes to the host for the text of its error.
    return VtxUtilStyleSetLowLevelX(arguments.handle());
}

} // namespace vantrix::toolbox
