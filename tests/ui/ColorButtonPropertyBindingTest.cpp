#include "ui/ColorButtonPropertyBinding.h"
#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "support/RecordingHost.h"
#include "toolbox/BasicColors.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include <set>

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

TEST_F(ColorButtonBinding, EveryColourHasANameOfItsOwn)
{
    std::set<QString> names;
    for (int color = 0; color < toolbox::BASIC_COLOR_COUNT; ++color) {
        names.insert(swatch(color).toolTip());
    }
    EXPECT_EQ(names.size(), std::size_t{toolbox::BASIC_COLOR_COUNT});
    EXPECT_EQ(swatch(17).toolTip(), QStringLiteral("Dark orange"));
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
    QTest::keyClick(&swatch(2), Qt::Key_Down);
    QTest::keyClick(&swatch(10), Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &swatch(18)) << "below greys lie the dark hues";
    QTest::keyClick(&swatch(18), Qt::Key_Up);
    QTest::keyClick(&swatch(10), Qt::Key_Up);
    QTest::keyClick(&swatch(2), Qt::Key_Up);
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
