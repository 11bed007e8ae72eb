#include "KernelFixture.h"

namespace vantrix::kernel {

namespace {

/* A listener that does what a test gives it to do. */
struct Listener
{
    std::vector<int> heard;
    std::function<void(int)> then;

    static void call(VtxStateChangeHandle change, void* self)
    {
        auto& listener = *static_cast<Listener*>(self);
        listener.heard.push_back(VtxUtilStateChangeGetKind(change));
        if (listener.then) {
            listener.then(VtxUtilStateChangeGetKind(change));
        }
    }
};

class StateChangesTest : public testing::Test
{
protected:
    void add(Listener& listener) { m_changes.addListener(&Listener::call, &listener); }
    void remove(Listener& listener) { m_changes.removeListener(&Listener::call, &listener); }
    StateChanges m_changes;
};

} // namespace

TEST_F(StateChangesTest, AChangeFromWithinReachesEverybodyAfterThePresentOne)
{
    Listener first;
    Listener second;
    first.then = [&](int kind) {
        if (kind == StateChange_View) {
            m_changes.send(StateChange_Text);
        }
    };
    add(first);
    add(second);
    m_changes.send(StateChange_View);
    EXPECT_EQ(first.heard, (std::vector<int>{StateChange_View, StateChange_Text}));
    EXPECT_EQ(second.heard, (std::vector<int>{StateChange_View, StateChange_Text}));
}

TEST_F(StateChangesTest, AListenerRemovedMeanwhileHearsNothingAndOneAddedHearsTheNext)
{
    Listener first;
    Listener removed;
    Listener added;
    first.then = [&](int) {
        remove(removed);
        remove(first);
        add(added);
    };
    add(first);
    add(removed);
    m_changes.send(StateChange_View);
    EXPECT_EQ(first.heard.size(), 1U);
    EXPECT_TRUE(removed.heard.empty());
    EXPECT_TRUE(added.heard.empty());
    m_changes.send(StateChange_Text);
    EXPECT_EQ(first.heard.size(), 1U);
    EXPECT_EQ(added.heard, std::vector<int>{StateChange_Text});
}

TEST_F(StateChangesTest, AListenerIsRegisteredOnceAndCanComeBackWhileItIsTold)
{
    Listener listener;
    add(listener);
    add(listener);
    listener.then = [&](int) {
        remove(listener);
        add(listener);
    };
    m_changes.send(StateChange_View);
    m_changes.send(StateChange_View);
    EXPECT_EQ(listener.heard.size(), 2U);
}

using StyleNoticeTest = KernelTest;

TEST_F(StyleNoticeTest, AStyleChangeTellsPathObjectAndWhatElseItMeans)
{
    show("flow3d");
    notices.clear();
    set("GlobalContour/Var", 2L, 3);
    ASSERT_EQ(kinds(), (std::vector<int>{StateChange_Style, StateChange_ContourVar}));
    EXPECT_EQ(notices[0].object, 3);
    const VtxStateChange change{StateChange_Style, notices[0].entry, 3};
    EXPECT_STREQ(VtxUtilStateChangeGetStyleParam(&change, 1), "GlobalContour");
    EXPECT_STREQ(VtxUtilStateChangeGetStyleParam(&change, 2), "Var");
    EXPECT_EQ(VtxUtilStateChangeGetStyleParam(&change, 3), nullptr);
    EXPECT_EQ(VtxUtilStateChangeGetStyleParam(&change, 0), nullptr);
    const VtxStateChange other{StateChange_View, -1, 0};
    EXPECT_EQ(VtxUtilStateChangeGetStyleParam(&other, 1), nullptr);
}

} // namespace vantrix::kernel
