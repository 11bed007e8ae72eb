#include "propertybindings/RadioButtonPropertyBinding.h"

#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "support/RecordingHost.h"

#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

using namespace vantrix;
using namespace vantrix::sdk::ui::dialogs::propertybindings;

struct TwoButtons : public testing::Test
{
    TwoButtons()
    {
        test::RecordingHost::instance().reset();
        QVBoxLayout* layout = new QVBoxLayout(&window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
    }

    QWidget window;
    QRadioButton* first = new QRadioButton;
    QRadioButton* second = new QRadioButton;
    boost::shared_ptr<Property<int>> property =
        boost::make_shared<Property<int>>(1, boost::make_shared<BoundedValueValidator<int>>(0, 3));
};

TEST_F(TwoButtons, FollowThePropertyOnIdleAlsoToAValueOfNoButton)
{
    RadioButtonPropertyBinding<int> const one(first, property, 1);
    RadioButtonPropertyBinding<int> const two(second, property, 2);
    EXPECT_TRUE(first->isChecked());
    property->setValue(2);
    EXPECT_TRUE(first->isChecked());
    sdk::OnIdleActionPerformerSingleShot::performPending();
    EXPECT_FALSE(first->isChecked());
    EXPECT_TRUE(second->isChecked());
    property->setValue(3);
    sdk::OnIdleActionPerformerSingleShot::performPending();
    EXPECT_FALSE(first->isChecked());
    EXPECT_FALSE(second->isChecked());
    EXPECT_EQ(property->value(), 3);
}

TEST_F(TwoButtons, SetThePropertyOnceWhenTheUserChecksOne)
{
    RadioButtonPropertyBinding<int> const one(first, property, 1);
    RadioButtonPropertyBinding<int> const two(second, property, 2);
    int changes = 0;
    property->connectToValueChangedSignal([&changes](int) { ++changes; });
    QTest::mouseClick(second, Qt::LeftButton, {}, QPoint(5, second->height() / 2));
    EXPECT_EQ(property->value(), 2);
    EXPECT_EQ(changes, 1);
}

TEST_F(TwoButtons, TellOnceThatAValueIsRefused)
{
    RadioButtonPropertyBinding<int> const one(first, property, 1);
    RadioButtonPropertyBinding<int> const bad(second, property, 9);
    QTest::keyClick(second, Qt::Key_Space);
    EXPECT_EQ(property->value(), 1);
    EXPECT_EQ(test::RecordingHost::instance().messages.size(), 1U);
    EXPECT_TRUE(second->isChecked());
}

} // namespace
