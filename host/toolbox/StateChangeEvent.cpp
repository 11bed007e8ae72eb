#include "toolbox/StateChangeEvent.h"

#include "api/VtxUtilState.h"

namespace vantrix::toolbox {

StateChangeEvent::StateChangeEvent(VtxStateChangeHandle change)
    : m_change(change)
    , m_kind(VtxUtilStateChangeGetKind(change))
{}

int StateChangeEvent::kind() const
{
    return m_kind;
}

std::string StateChangeEvent::styleParam(int index) const
{
    char const* const name = VtxUtilStateChangeGetStyleParam(m_change, index);
    return name != nullptr ? name : "";
}

long StateChangeEvent::styleEntry() const
{
    return VtxUtilStateChangeGetStyleEntry(m_change);
}

long StateChangeEvent::object() const
{
    return VtxUtilStateChangeGetObject(m_change);
}

} // namespace vantrix::toolbox
