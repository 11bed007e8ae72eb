#include "toolbox/Set.h"
#include "property/InvalidArgumentException.h"

#include <gtest/gtest.h>

using vantrix::toolbox::Set;

TEST(Set, ListsItsMembersInOrder)
{
    Set set;
    set.addMember(7);
    set.addMember(2);
    set.addMember(7);
    EXPECT_EQ(set.memberCount(), 2);
    EXPECT_EQ(set.members(), (std::set<int>{2, 7}));
    set.removeMember(2);
    EXPECT_FALSE(set.isMember(2));
}

TEST(Set, IsCopiedAsAValue)
{
    Set const original(std::set<int>{1, 3});
    Set copy(original);
    copy.addMember(4);
    Set assigned;
    assigned = copy;
    copy.removeMember(1);
    EXPECT_EQ(original.members(), (std::set<int>{1, 3}));
    EXPECT_EQ(assigned.members(), (std::set<int>{1, 3, 4}));
}

TEST(Set, RefusesNumbersBelowOne)
{
    EXPECT_THROW(Set(std::set<int>{0, 1}), vantrix::InvalidArgumentException);
}

TEST(Set, FromAHostThatHasNothingToListIsEmpty)
{
    EXPECT_TRUE(Set(VtxSetHandle{nullptr}).isEmpty());
}
