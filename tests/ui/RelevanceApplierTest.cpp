#include "ui/RelevanceApplier.h"

#include "support/DialogTest.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

#include <QAction>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>

using namespace vantrix::sdk::ui::dialogs::propertybindings;
using namespace vantrix::sdk::ui::propertymanager;
using namespace vantrix::test;

namespace {

class RelevanceApplierTest : public DialogTest
{
protected:
    RelevanceApplierTest() { relevance->setReason("There is no frame."); }

    void setRelevant(bool value)
    {
        relevant = value;
        host.notify(StateChange_NewActiveFrame);
    }

    bool relevant = false;
    boost::shared_ptr<StateChangeDependentRelevance> relevance =
        boost::make_shared<StateChangeDependentRelevance>([this] { return relevant; });
    QPushButton* first = new QPushButton(&parent);
    QPushButton* second = new QPushButton(&parent);
    QAction action;
};

} // namespace

TEST_F(RelevanceApplierTest, SensitivityDisablesControlsAndTellsWhy)
{
    first->setToolTip(QStringLiteral("Creates it"));
    RelevanceApplier const applier(relevance, first, second, &action, RelevanceApplier::Sensitivity,
                                   BindingInterface::OnIdle);
    EXPECT_FALSE(first->isEnabled());
    EXPECT_FALSE(second->isEnabled());
    EXPECT_FALSE(action.isEnabled());
    EXPECT_EQ(first->toolTip(), QStringLiteral("There is no frame."));

    setRelevant(true);
    EXPECT_FALSE(first->isEnabled());
    idle();
    EXPECT_TRUE(first->isEnabled());
    EXPECT_TRUE(action.isEnabled());
    EXPECT_EQ(first->toolTip(), QStringLiteral("Creates it"));
    EXPECT_EQ(second->toolTip(), QString());
}

TEST_F(RelevanceApplierTest, ARelevantPageOfAStackComesToTheFront)
{
    QStackedWidget stack;
    auto* const other = new QWidget;
    auto* const page = new QWidget;
    stack.addWidget(other);
    stack.addWidget(page);
    RelevanceApplier const applier(relevance, page, RelevanceApplier::Visibility, BindingInterface::Immediate);
    EXPECT_EQ(stack.currentWidget(), other);
    setRelevant(true);
    EXPECT_EQ(stack.currentWidget(), page);
    setRelevant(false);
    EXPECT_EQ(stack.currentWidget(), page) << "until another page is relevant";

    QTabWidget tabs;
    tabs.addTab(other, QString());
    tabs.addTab(page, QString());
    setRelevant(true);
    EXPECT_EQ(tabs.currentWidget(), other) << "tabs are the user's choice";
}

TEST_F(RelevanceApplierTest, VisibilityHidesControlsAndImmediateDoesNotWait)
{
    std::vector<QObject*> const controls{first, second};
    RelevanceApplier const applier(relevance, controls, RelevanceApplier::Visibility, BindingInterface::Immediate);
    EXPECT_TRUE(first->isHidden());
    EXPECT_TRUE(first->isEnabled());
    delete second;
    setRelevant(true);
    EXPECT_FALSE(first->isHidden());
}

TEST_F(RelevanceApplierTest, ADestroyedApplierLeavesTheControlsAlone)
{
    {
        RelevanceApplier const applier(relevance, first, RelevanceApplier::Sensitivity, BindingInterface::OnIdle);
        setRelevant(true);
    }
    idle();
    setRelevant(true);
    EXPECT_FALSE(first->isEnabled());
}
