#include "propertysets/MemberProbe.h"

#include "api/VtxUtil.h"
#include "propertymanager/UIPropertyInterface.h"
#include "sdk/AppLock.h"
#include "tests/PropertySetWalk.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace vantrix::sdk::ui::propertymanager {

namespace {

/// One set with its members in the order of declaration.
struct SetProbe
{
    struct Member
    {
        std::string path;
        std::unique_ptr<MemberProbe> probe;
    };

    std::string name;
    std::unique_ptr<UIKernelStylePropertiesAbstract> set;
    std::vector<Member> members;

    template<typename T>
    void operator()(std::string const& path, boost::shared_ptr<PropertyAbstract<T>> const& member)
    {
        members.push_back({path, std::make_unique<MemberProbeOf<T>>(member)});
    }
};

struct AllSets
{
    bool modal;
    std::vector<SetProbe> sets;
    bool isNowhere = false; // on a path that the host does not know

    template<typename Set>
    void operator()(std::string const& name, toolbox::StringList const& path, int offsets)
    {
        auto set = std::make_unique<Set>(modal, isNowhere ? toolbox::StringList{"NoSuchNode"} : path);
        if (offsets > 0) {
            set->setOffset(1, offsets > 1 ? 1 : -1);
        }
        Set& concrete = *set;
        SetProbe& probe = sets.emplace_back(SetProbe{name, std::move(set), {}});
        visitMembers(concrete, name, probe);
    }
};

std::vector<SetProbe> allSets(bool modal)
{
    AllSets all{modal, {}};
    visitSets(all);
    return std::move(all.sets);
}

} // namespace

TEST(PropertySets, EveryMemberOfAModelessSetWritesThroughAndComesBack)
{
    std::vector<SetProbe> const edited = allSets(false);
    std::vector<SetProbe> const others = allSets(false);
    ASSERT_FALSE(edited.empty());
    AppLock const lock;
    for (std::size_t set = 0; set < edited.size(); ++set) {
        for (std::size_t member = 0; member < edited[set].members.size(); ++member) {
            auto const& [path, probe] = edited[set].members[member];
            SCOPED_TRACE(path);
            EXPECT_TRUE(probe->change()) << "the host accepts no other value";
            EXPECT_TRUE(others[set].members[member].probe->agreesWith(*probe)) << "another set does not see the change";
            probe->restore();
            EXPECT_TRUE(others[set].members[member].probe->isAsAtFirst());
        }
    }
}

TEST(PropertySets, EveryMemberOfAModalSetKeepsItsEditFromTheHostAndDropsItOnInit)
{
    std::vector<SetProbe> const edited = allSets(true);
    std::vector<SetProbe> const host = allSets(false);
    for (std::size_t set = 0; set < edited.size(); ++set) {
        for (auto const& [path, probe] : edited[set].members) {
            probe->edit();
            EXPECT_FALSE(probe->isAsAtFirst()) << path;
        }
        for (auto const& [path, probe] : host[set].members) {
            EXPECT_TRUE(probe->isAsAtFirst()) << path << " was written to the host before the submit";
        }
        edited[set].set->init();
        for (auto const& [path, probe] : edited[set].members) {
            EXPECT_TRUE(probe->isAsAtFirst()) << path << " keeps its edit";
        }
    }
}

TEST(PropertySets, EveryMemberOfAModalSetReachesTheHostWithTheSubmit)
{
    std::vector<SetProbe> const edited = allSets(true);
    std::vector<SetProbe> const host = allSets(false);
    for (std::size_t set = 0; set < edited.size(); ++set) {
        auto const& edits = edited[set].members;
        auto const& there = host[set].members;
        auto const restore = [&there] {
            AppLock const lock;
            // A scale lets its range follow, and the ends of a range wait for each other.
            for (bool const isLastTry : {false, false, true}) {
                for (auto const& [path, probe] : there) {
                    try {
                        probe->restore();
                    } catch (InvalidPropertyValueException const& exception) {
                        EXPECT_FALSE(isLastTry) << path << ": " << exception.message();
                    }
                }
            }
        };
        {
            AppLock const lock;
            for (std::size_t member = 0; member < edits.size(); ++member) {
                EXPECT_TRUE(there[member].probe->change()) << edits[member].path;
                edits[member].probe->take(*there[member].probe);
            }
        }
        restore();
        edited[set].set->submit();
        for (std::size_t member = 0; member < edits.size(); ++member) {
            EXPECT_TRUE(there[member].probe->agreesWith(*edits[member].probe)) << edits[member].path;
            EXPECT_FALSE(there[member].probe->isAsAtFirst()) << edits[member].path << " was left out";
        }
        restore();
        edited[set].set->init();
        for (auto const& [path, probe] : edits) {
            EXPECT_TRUE(probe->isAsAtFirst()) << path;
        }
    }
}

TEST(PropertySets, OfPathsThatTheHostDoesNotKnowRefuseEveryEdit)
{
    AppLock const lock;
    AllSets nowhere{false, {}, true};
    visitSets(nowhere);
    ASSERT_FALSE(nowhere.sets.empty());
    for (SetProbe const& set : nowhere.sets) {
        for (auto const& [path, probe] : set.members) {
            EXPECT_THROW(probe->edit(), InvalidPropertyValueException) << path;
            EXPECT_TRUE(probe->isAsAtFirst()) << path;
        }
    }

    OptionsRulerGridPropertiesGenerated modal(true, {"NoSuchNode"});
    modal.showGrid()->setValue(true);
    EXPECT_THROW(modal.submit(), InvalidPropertyValueException);
}

namespace {

/// Tells of each member whether it has a visible and a sensitive state of its own.
struct UIStates
{
    std::map<std::string, bool> byPath;

    template<typename T>
    void operator()(std::string const& path, boost::shared_ptr<PropertyAbstract<T>> const& member)
    {
        byPath[path] = dynamic_cast<UIPropertyInterface*>(member.get()) != nullptr;
    }
};

} // namespace

TEST(PropertySets, OfStreamtracesHandOutUIStylePropertiesInBothKinds)
{
    for (bool const modal : {false, true}) {
        StreamTraceDetailsPropertiesGenerated set(modal, {});
        UIStates states;
        visitMembers(set, "", states);
        EXPECT_FALSE(states.byPath.at("/StreamtraceLayers/Show"));
        for (char const* path :
             {"/FrameSetup/NumStreamrakePoints", "/StreamAttributes/CellFraction",
              "/StreamAttributes/TermLine/LinePattern", "/StreamAttributes/StreamTiming/TimeEnd",
              "/StreamAttributes/StreamTiming/MarkSymbol/GeomShape", "/StreamAttributes/RodRibbon/Width"}) {
            EXPECT_TRUE(states.byPath.at(path)) << path;
        }
        StreamTraceSpecificPropertiesGenerated specific(modal, {"FrameSetup", "Default3DStreamtrace"});
        EXPECT_TRUE(dynamic_cast<UIPropertyInterface*>(specific.getStreamType().get()));
    }
}

TEST(PropertySets, NoMemberStandsTwiceInASet)
{
    for (SetProbe const& set : allSets(false)) {
        std::set<std::string> paths;
        for (auto const& [path, probe] : set.members) {
            EXPECT_TRUE(paths.insert(path).second) << path;
        }
        EXPECT_FALSE(paths.empty()) << set.name;
    }
}

} // namespace vantrix::sdk::ui::propertymanager
