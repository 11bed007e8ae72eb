#include "ui/ColorButtonPropertyBinding.h"
#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "support/RecordingHost.h"
#include "toolbox/BasicColors.h"

#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

using namespace vantrix;
using namespace vantrix::sdk::ui::common;
using namespace vantrix::sdk::ui::dialogs::propertybindings;

class ColorButtonBinding : public testing::Test
{
protected:
    ColorButtonBinding()
    {
        test::RecordingHost::instance().reset();
        button.show();
    }

    QToolButton& swatch(int color) { return *button.popup().findChildren<QToolButton*>().at(color); }
    QColor shown() const { return button.icon().pixmap(button.iconSize()).toImage().pixelColor(2, 2); }

    ColorButton button;
    boost::shared_ptr<Property<int>> property =
        boost::make_shared<Property<int>>(1, boost::make_shared<BoundedValueValidator<int>>(0, 7));
};

TEST_F(ColorButtonBinding, ShowsTheColourOfTheProperty)
{
    ColorButtonPropertyBinding const binding(&button, property, BindingInterface::Immediate);
    EXPECT_EQ(shown(), QColor(Qt::red));
    property->setValue(3);
    EXPECT_EQ(shown(), QColor(Qt::blue));
    EXPECT_EQ(button.popup().findChildren<QToolButton*>().size(), toolbox::BASIC_COLOR_COUNT);
}

TEST_F(ColorButtonBinding, SetsTheColourThatTheUserClicks)
{
    ColorButtonPropertyBinding const binding(&button, property, BindingInterface::Immediate);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(button.popup().isVisible());
    QTest::mouseClick(&swatch(5), Qt::LeftButton);
    EXPECT_FALSE(button.popup().isVisible());
    EXPECT_EQ(property->value(), 5);
    EXPECT_EQ(button.color(), 5);
}

TEST_F(ColorButtonBinding, IsWorkedWithTheKeyboard)
{
    ColorButtonPropertyBinding const binding(&button, property, BindingInterface::Immediate);
    QTest::keyClick(&button, Qt::Key_Space);
    ASSERT_TRUE(button.popup().isVisible());
    QTest::keyClick(&swatch(1), Qt::Key_Right);
    QTest::keyClick(&swatch(2), Qt::Key_Space);
    EXPECT_EQ(property->value(), 2);
}

TEST_F(ColorButtonBinding, GoesBackWhenThePropertyRefuses)
{
    ColorButtonPropertyBinding const binding(&button, property, BindingInterface::Immediate);
    swatch(9).click();
    EXPECT_EQ(property->value(), 1);
    EXPECT_EQ(button.color(), 1);
    EXPECT_EQ(test::RecordingHost::instance().messages.size(), 1U);
}

} // namespace
