#pragma once

#include "api/VtxUtilArgList.h"

#include <set>

namespace vantrix::toolbox {

/// A set of numbers from 1: zones or variables. A value: copies are independent of each other.
class Set
{
public:
    Set();

    /// @throws vantrix::InvalidArgumentException for a number below 1
    explicit Set(std::set<int> const& members);

    /// Takes over a set that the host handed out. Null, which the host gives where there is nothing to list, is empty.
    explicit Set(VtxSetHandle owned);

    ~Set();
    Set(Set const& other);
    Set(Set&& other) noexcept;
    Set& operator=(Set other) noexcept;

    /// Adding a member again changes nothing.
    /// @throws vantrix::InvalidArgumentException for a number below 1
    void addMember(long member);
    void removeMember(long member);
    bool isMember(long member) const;
    long memberCount() const;
    bool isEmpty() const { return memberCount() == 0; }

    /// The smallest member above `after`, or 0 when there is none. Start with 0.
    long getNextMember(long after) const;

    std::set<int> members() const;

    /// What the host functions take; stays with this set.
    VtxSetHandle handle() const { return m_handle; }

private:
    VtxSetHandle m_handle;
};

} // namespace vantrix::toolbox
