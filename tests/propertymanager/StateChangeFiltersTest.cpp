#include "ui/relevance/StateChangeFilters.h"
#include "api/VtxEnumerations.h"

#include <gtest/gtest.h>

#include <set>

using namespace vantrix::sdk::ui::common;

namespace {

class FakeEvent : public vantrix::toolbox::StateChangeEventInterface
{
public:
    explicit FakeEvent(int kind, std::string firstName = {})
        : m_kind(kind)
        , m_firstName(std::move(firstName))
    {}

    int kind() const override { return m_kind; }
    std::string styleParam(int index) const override { return index == 1 ? m_firstName : std::string(); }
    long styleEntry() const override { return -1; }
    long object() const override { return 0; }

private:
    int m_kind;
    std::string m_firstName;
};

/// The kinds without a style path that pass a filter.
std::set<int> passing(bool (*filter)(vantrix::toolbox::StateChangeEventInterface const&))
{
    std::set<int> kinds;
    for (int kind = 0; kind <= StateChange_HistoryStep; ++kind) {
        if (kind != StateChange_Style && filter(FakeEvent(kind))) {
            kinds.insert(kind);
        }
    }
    return kinds;
}

} // namespace

TEST(StateChangeFilters, PassTheKindsThatConcernThem)
{
    EXPECT_EQ(passing(&isPickListStateChange), (std::set<int>{26, 27, 28}));
    EXPECT_EQ(passing(&isNewActiveFrameStateChange), (std::set<int>{5, 6, 9, 10, 29, 49, 50}));
    EXPECT_EQ(passing(&isPlotTypeStateChange), (std::set<int>{5, 6, 8, 9, 10, 29, 49, 50}));
    EXPECT_EQ(passing(&isDataRelatedStateChange),
              (std::set<int>{0, 1, 2, 3, 4, 5, 6, 8, 9, 10, 16, 17, 29, 44, 49, 50}));
    EXPECT_EQ(passing(&isFieldStyleStateChange), (std::set<int>{5, 6, 8, 9, 10, 12, 20, 21, 22, 23, 24, 29, 49, 50}));
    EXPECT_EQ(passing(&isMacroRecordingStateChange), (std::set<int>{10, 30}));
    std::set<int> either = passing(&isFieldStyleStateChange);
    either.merge(passing(&isDataRelatedStateChange));
    EXPECT_EQ(passing(&isFieldOrDataRelatedStateChange), either);
}

TEST(StateChangeFilters, TellStyleChangesApartByTheirPath)
{
    EXPECT_TRUE(isPlotTypeStateChange(FakeEvent(StateChange_Style, "PlotType")));
    EXPECT_FALSE(isPlotTypeStateChange(FakeEvent(StateChange_Style, "GlobalStream")));
    EXPECT_TRUE(isFieldStyleStateChange(FakeEvent(StateChange_Style, "GlobalStream")));
    EXPECT_FALSE(isFieldStyleStateChange(FakeEvent(StateChange_Style, "XYLineAxis")));
    EXPECT_FALSE(isDataRelatedStateChange(FakeEvent(StateChange_Style, "GlobalStream")));
}
