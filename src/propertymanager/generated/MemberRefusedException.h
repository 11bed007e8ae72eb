#pragma once

#include "property/InvalidPropertyValueException.h"
#include "property/PropertyItemInterface.h"

#include <boost/shared_ptr.hpp>

namespace vantrix::sdk::ui::propertymanager {

/// The host has refused the value of one member of a property set that was submitted. The message is the host's.
class MemberRefusedException : public InvalidPropertyValueException
{
public:
    MemberRefusedException(std::string const& message, boost::shared_ptr<PropertyItemInterface const> member)
        : ExceptionBase(message, true)
        , InvalidPropertyValueException(message)
        , m_member(std::move(member))
    {}

    /// What the set hands out for the member, and a form is bound to. Not null.
    PropertyItemInterface const& member() const { return *m_member; }

private:
    boost::shared_ptr<PropertyItemInterface const> m_member;
};

/// Applies a deferred property; a refusal then tells which member it is about.
/// @throws MemberRefusedException
template<typename Deferred>
void applyMember(Deferred& property, boost::shared_ptr<PropertyItemInterface const> const& member)
{
    try {
        property.apply();
    } catch (InvalidPropertyValueException const& refusal) {
        throw MemberRefusedException(refusal.message(), member);
    }
}

} // namespace vantrix::sdk::ui::propertymanager
