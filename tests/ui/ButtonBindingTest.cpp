#include "ui/ButtonBinding.h"

#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "propertybindings/TextFieldPropertyBinding.h"
#include "support/DialogTest.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

using namespace vantrix;
using namespace vantrix::sdk::ui::dialogs::propertybindings;
using namespace vantrix::test;

namespace {

/// A window with a field of a property from 1 to 9 and a button that notes the property's value.
class ButtonBindingTest : public DialogTest
{
protected:
    ButtonBindingTest()
    {
        auto* const layout = new QVBoxLayout(&parent);
        layout->addWidget(field);
        layout->addWidget(button);
        parent.show();
        QApplication::setActiveWindow(&parent);
        field->setFocus();
    }

    void pressAccessKey() const
    {
        QTest::keyClick(field, Qt::Key_G, Qt::AltModifier);
        QTest::qWait(200); // the button stays down for a moment before it clicks
    }

    QLineEdit* field = new QLineEdit;
    QPushButton* button = new QPushButton(QStringLiteral("&Go"));
    boost::shared_ptr<Property<long>> property =
        boost::make_shared<Property<long>>(5, boost::make_shared<BoundedValueValidator<long>>(1, 9));
    std::vector<long> values;
    TextFieldPropertyBinding<long> fieldBinding{field, property, BindingInterface::OnIdle,
                                                TextFieldPropertyBinding<long>::CursorAtEnd};
    ButtonBinding binding{button, [this] { values.push_back(property->value()); }};
};

} // namespace

TEST_F(ButtonBindingTest, ActsOnWhatWasTypedLastHoweverItIsTriggered)
{
    typeInto(*field, "6");
    QTest::mouseClick(button, Qt::LeftButton);
    typeInto(*field, "7");
    pressAccessKey();
    typeInto(*field, "8");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_THAT(values, testing::ElementsAre(6, 7, 8));
}

TEST_F(ButtonBindingTest, DropsAClickThatEndedARefusedEdit)
{
    typeInto(*field, "0");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_THAT(host.messages, testing::SizeIs(1));
    idle();
    typeInto(*field, "10");
    pressAccessKey();
    EXPECT_THAT(host.messages, testing::SizeIs(2));
    EXPECT_THAT(values, testing::IsEmpty());

    pressAccessKey();
    EXPECT_THAT(values, testing::ElementsAre(5)) << "the next one finds the restored value and counts";
    enter(*field, "11");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_THAT(host.messages, testing::SizeIs(3));
    EXPECT_THAT(values, testing::ElementsAre(5, 5)) << "the refusal before had nothing to do with the click";
}
