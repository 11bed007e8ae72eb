#include "KernelFixture.h"

#include "toolbox/HostString.h"
#include "toolbox/Set.h"

namespace vantrix::kernel {

namespace {

class LineMapsTest : public KernelTest
{
protected:
    void SetUp() override
    {
        KernelTest::SetUp();
        show("lines");
        notices.clear();
    }

    static std::string name(long lineMap)
    {
        char* text = nullptr;
        VtxUtilLineMapGetName(lineMap, &text);
        return toolbox::takeHostString(text);
    }

    static long zoneOf(long lineMap)
    {
        long zone = 0;
        EXPECT_TRUE(VtxUtilLineMapGetAssignment(lineMap, &zone, nullptr, nullptr, nullptr, nullptr)) << lineMap;
        return zone;
    }

    static bool remove(const std::set<int>& numbers, bool (*function)(VtxSetHandle))
    {
        const toolbox::Set set(numbers);
        const LockScope lock;
        return function(set.handle());
    }
};

} // namespace

TEST_F(LineMapsTest, AreNamedByThemselvesOrByTheirYVariable)
{
    EXPECT_EQ(VtxUtilLineMapGetCount(), 4);
    EXPECT_EQ(name(2), "Damping 0.08") << "one zone a line map: named like the zones";
    set("LineMap/Name", std::string(), 2);
    EXPECT_EQ(name(2), "Displacement");
    EXPECT_THAT(kinds(), testing::Contains(int{StateChange_LineMapName}));
    for (const long missing : {0L, -1L, 5L}) {
        EXPECT_EQ(name(missing), "");
        EXPECT_FALSE(VtxUtilLineMapGetAssignment(missing, nullptr, nullptr, nullptr, nullptr, nullptr));
    }
}

TEST_F(LineMapsTest, AddedOnesTakeTheNextColorAndOneUndoTakesThemBack)
{
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilLineMapCreate(3, 1, 4));
    }
    EXPECT_THAT(kinds(), testing::Contains(int{StateChange_LineMapsAddedOrDeleted}));
    long y = 0;
    int xAxis = 0;
    ASSERT_TRUE(VtxUtilLineMapGetAssignment(5, nullptr, nullptr, &y, &xAxis, nullptr));
    EXPECT_EQ(y, 4);
    EXPECT_EQ(xAxis, 1);
    EXPECT_EQ(name(5), "Energy");
    for (long other = 1; other <= 4; ++other) {
        EXPECT_NE(value("LineMap/Lines/Color", 5), value("LineMap/Lines/Color", other));
    }
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilLineMapGetCount(), 4);

    for (const auto& [zone, x, yVariable] : {std::tuple(5L, 1L, 2L), {0L, 1L, 2L}, {1L, 9L, 2L}, {1L, 1L, 0L}}) {
        const LockScope lock;
        EXPECT_FALSE(VtxUtilLineMapCreate(zone, x, yVariable));
    }
    EXPECT_EQ(VtxUtilLineMapGetCount(), 4);
}

TEST_F(LineMapsTest, DeletedOnesTakeTheirStyleWithThemAndUndoBringsItBack)
{
    set("LineMap/Lines/LineThickness", 0.7, 3);
    set("ActiveLineMaps", 0L, 4);
    notices.clear();
    ASSERT_TRUE(remove({1, 2}, &VtxUtilLineMapDelete));
    EXPECT_EQ(VtxUtilLineMapGetCount(), 2);
    EXPECT_EQ(name(1), "Damping 0.2");
    EXPECT_EQ(value("LineMap/Lines/LineThickness", 1), StyleData(0.7));
    const toolbox::Set active(VtxUtilLineMapGetActive());
    EXPECT_EQ(active.memberCount(), 1);
    EXPECT_THAT(kinds(), testing::Contains(int{StateChange_LineMapsAddedOrDeleted}));

    notices.clear();
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilLineMapGetCount(), 4);
    EXPECT_EQ(name(1), "Damping 0.02");
    EXPECT_EQ(value("LineMap/Lines/LineThickness", 3), StyleData(0.7));
    ASSERT_TRUE(VtxUtilRedo());
    EXPECT_EQ(name(1), "Damping 0.2");

    EXPECT_FALSE(remove({}, &VtxUtilLineMapDelete));
    EXPECT_FALSE(remove({2, 3}, &VtxUtilLineMapDelete)) << "there is no third any more";
    EXPECT_EQ(VtxUtilLineMapGetCount(), 2);
}

TEST_F(LineMapsTest, FollowTheirZonesWhenZonesAreDeleted)
{
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilLineMapCreate(4, 1, 3));
    }
    ASSERT_TRUE(remove({2}, &VtxUtilDataSetDeleteZone));
    ASSERT_EQ(VtxUtilLineMapGetCount(), 4);
    const std::vector<long> zones{zoneOf(1), zoneOf(2), zoneOf(3), zoneOf(4)};
    EXPECT_EQ(zones, (std::vector<long>{1, 2, 3, 3}));
    EXPECT_EQ(name(2), "Damping 0.2");
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilLineMapGetCount(), 5);
    EXPECT_EQ(zoneOf(5), 4);
    EXPECT_EQ(zoneOf(2), 2);
}

TEST_F(LineMapsTest, ANewDataSetBringsItsOwn)
{
    set("LineMap/Lines/LineThickness", 2.0, 1);
    show("fe2d");
    EXPECT_EQ(value("LineMap/Lines/LineThickness", 1), StyleData(0.4)) << "nothing is left of the former ones";
    const toolbox::Set active(VtxUtilLineMapGetActive());
    EXPECT_EQ(active.memberCount(), 1) << "of what is no line, one line map is enough to begin with";
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(VtxUtilLineMapGetCount(), 4);
    EXPECT_EQ(value("LineMap/Lines/LineThickness", 1), StyleData(2.0));
}

} // namespace vantrix::kernel
