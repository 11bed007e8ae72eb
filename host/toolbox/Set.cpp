#include "toolbox/Set.h"

#include "property/InvalidArgumentException.h"

#include <new>
#include <string>
#include <utility>

namespace vantrix::toolbox {

namespace {

VtxSetHandle allocate()
{
    VtxSetHandle const handle = VtxUtilSetAlloc();
    if (handle == nullptr) {
        throw std::bad_alloc();
    }
    return handle;
}

} // namespace

Set::Set()
    : m_handle(allocate())
{}

Set::Set(std::set<int> const& members)
    : Set()
{
    for (int const member : members) {
        addMember(member);
    }
}

Set::Set(VtxSetHandle owned)
    : m_handle(owned != nullptr ? owned : allocate())
{}

Set::~Set()
{
    VtxUtilSetDealloc(&m_handle);
}

Set::Set(Set const& other)
    : Set()
{
    for (long member = other.getNextMember(0); member != 0; member = other.getNextMember(member)) {
        addMember(member);
    }
}

Set::Set(Set&& other) noexcept
    : m_handle(std::exchange(other.m_handle, nullptr))
{}

Set& Set::operator=(Set other) noexcept
{
    std::swap(m_handle, other.m_handle);
    return *this;
}

void Set::addMember(long member)
{
    if (!VtxUtilSetAddMember(m_handle, member)) {
        throw InvalidArgumentException("A set holds numbers from 1; " + std::to_string(member) + " is not one.");
    }
}

void Set::removeMember(long member)
{
    VtxUtilSetRemoveMember(m_handle, member);
}

bool Set::isMember(long member) const
{
    return VtxUtilSetIsMember(m_handle, member);
}

long Set::memberCount() const
{
    return VtxUtilSetGetMemberCount(m_handle);
}

long Set::getNextMember(long after) const
{
    return VtxUtilSetGetNextMember(m_handle, after);
}

std::set<int> Set::members() const
{
    std::set<int> result;
    for (long member = getNextMember(0); member != 0; member = getNextMember(member)) {
        result.insert(result.end(), static_cast<int>(member));
    }
    return result;
}

} // namespace vantrix::toolbox
