#include "app/HistoryActions.h"

#include "api/VtxUtil.h"
#include "toolbox/StyleValue.h"

#include "AppTestSupport.h"

#include <QAction>

namespace vantrix::test {
namespace {

using namespace Qt::StringLiterals;

class HistoryActionsTest : public AppTest
{
protected:
    toolbox::StyleValue frameName{"FrameName"};

    std::string name() const
    {
        std::string text;
        frameName.getValue(&text);
        return text;
    }
};

TEST_F(HistoryActionsTest, TheActionsNameTheStepThatTheyTake)
{
    app::HistoryActions actions(nullptr);
    EXPECT_FALSE(actions.undo()->isEnabled());
    EXPECT_EQ(actions.undo()->text(), u"&Undo"_s);

    {
        const sdk::AppLock lock;
        VtxUtilUndoSetStepName("Name & Title");
        frameName.setValue(std::string("Wing"));
    }
    settle();
    EXPECT_TRUE(actions.undo()->isEnabled());
    EXPECT_EQ(actions.undo()->text(), u"&Undo Name && Title"_s);
    EXPECT_FALSE(actions.redo()->isEnabled());

    actions.undo()->trigger();
    EXPECT_EQ(name(), "");
    EXPECT_FALSE(actions.undo()->isEnabled());
    EXPECT_EQ(actions.redo()->text(), u"&Redo Name && Title"_s);

    actions.redo()->trigger();
    EXPECT_EQ(name(), "Wing");
    EXPECT_EQ(actions.undo()->text(), u"&Undo Name && Title"_s);
}

} // namespace
} // namespace vantrix::test
