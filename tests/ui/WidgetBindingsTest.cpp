#include "property/Property.h"
#include "propertymanager/UILocalStyleProperty.h"
#include "propertymanager/UIPropertyClassicDirectRelevance.h"
#include "support/DialogTest.h"
#include "ui/CheckButtonPropertyBinding.h"
#include "ui/LabelPropertyBinding.h"
#include "ui/WidgetPropertyBinding.h"

#include <QCheckBox>

using namespace vantrix;
using namespace vantrix::sdk::ui::dialogs::propertybindings;
using namespace vantrix::sdk::ui::propertymanager;
using namespace vantrix::test;

namespace {

using Direct = UIPropertyClassicDirectRelevance;

struct OnlyTrue : ValidatorInterface<bool>
{
    ValidationResult validate(bool const& value) const override
    {
        ValidationResult result;
        if (!value) {
            result.setErrorString("It has to stay on.");
        }
        return result;
    }
};

using WidgetBindingsTest = DialogTest;

} // namespace

TEST_F(WidgetBindingsTest, ACheckBoxAndItsFlagFollowEachOther)
{
    QCheckBox box(&parent);
    auto const flag = boost::make_shared<Property<bool>>(true);
    CheckButtonPropertyBinding const binding(&box, flag, BindingInterface::OnIdle);
    EXPECT_TRUE(box.isChecked());
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_FALSE(flag->value());
    flag->setValue(true);
    EXPECT_FALSE(box.isChecked());
    idle();
    EXPECT_TRUE(box.isChecked());
}

TEST_F(WidgetBindingsTest, ARefusedFlagIsToldAndTheBoxShowsTheOldOne)
{
    QCheckBox box(&parent);
    auto const flag = boost::make_shared<Property<bool>>(true, boost::make_shared<OnlyTrue>());
    CheckButtonPropertyBinding const binding(&box, flag, BindingInterface::OnIdle);
    box.click();
    EXPECT_THAT(host.messages, testing::ElementsAre("It has to stay on."));
    EXPECT_TRUE(box.isChecked());
}

TEST_F(WidgetBindingsTest, ALabelShowsItsProperty)
{
    QLabel label(&parent);
    auto const number = boost::make_shared<Property<double>>(0.125);
    LabelPropertyBinding<double> const binding(&label, number, BindingInterface::Immediate);
    EXPECT_EQ(label.text(), QStringLiteral("0.125"));
    number->setValue(1e7);
    EXPECT_EQ(label.text(), QStringLiteral("1e+07"));
}

TEST_F(WidgetBindingsTest, WidgetsFollowSensitivityAndVisibilityOfAUiStyleProperty)
{
    QCheckBox box(&parent);
    QLabel label(&parent);
    UILocalStyleProperty<bool> flag(false);
    Direct::directSetPropertySensitivity(flag, false);
    CheckButtonPropertyBinding const boxBinding(&box, flag, BindingInterface::OnIdle);
    WidgetPropertyBinding const labelBinding(&label, flag);
    EXPECT_FALSE(box.isEnabledTo(&parent)) << "from the beginning";
    EXPECT_FALSE(label.isEnabledTo(&parent));

    Direct::directSetPropertySensitivity(flag, true);
    Direct::directSetPropertyVisibility(flag, false);
    idle();
    EXPECT_TRUE(box.isEnabledTo(&parent));
    EXPECT_TRUE(label.isEnabledTo(&parent));
    EXPECT_TRUE(box.isHidden());
    EXPECT_TRUE(label.isHidden());
}
