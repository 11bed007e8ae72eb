#include "ui/TextEditPropertyBinding.h"
#include "property/Property.h"
#include "support/UserInput.h"

#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

using namespace vantrix;
using namespace vantrix::sdk::ui::dialogs::propertybindings;

TEST(TextEditBinding, TakesTheTextWhenTheFocusLeavesAndFollowsTheProperty)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* textEdit = new QTextEdit;
    auto* other = new QLineEdit;
    layout->addWidget(textEdit);
    layout->addWidget(other);
    auto const property = boost::make_shared<Property<std::string>>("one\ntwo");
    TextEditPropertyBinding const binding(textEdit, property, BindingInterface::Immediate);
    EXPECT_EQ(textEdit->toPlainText().toStdString(), "one\ntwo");

    window.show();
    window.activateWindow();
    textEdit->setFocus();
    test::idle();
    textEdit->selectAll();
    QTest::keyClicks(textEdit, QStringLiteral("three"));
    QTest::keyClick(textEdit, Qt::Key_Return);
    EXPECT_EQ(property->value(), "one\ntwo");
    other->setFocus();
    EXPECT_EQ(property->value(), "three\n");

    property->setValue("\xc3\xa4");
    EXPECT_EQ(textEdit->toPlainText(), QString(QChar(0xe4)));
}

TEST(TextEditBinding, OutlivesAWidgetThatHasTheFocus)
{
    auto* textEdit = new QTextEdit;
    auto const property = boost::make_shared<Property<std::string>>("one");
    TextEditPropertyBinding binding(textEdit, property, BindingInterface::Immediate);
    textEdit->show();
    textEdit->activateWindow();
    textEdit->setFocus();
    test::idle();
    textEdit->setPlainText(QStringLiteral("two"));
    delete textEdit;
    property->setValue("three");
    EXPECT_FALSE(binding.editingFinished());
    EXPECT_EQ(property->value(), "three");
}

} // namespace
