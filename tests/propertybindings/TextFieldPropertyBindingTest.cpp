#include "propertybindings/TextFieldPropertyBinding.h"

#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "support/RecordingHost.h"
#include "support/UserInput.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QVBoxLayout>

#include <limits>

using namespace vantrix;
using namespace vantrix::sdk::ui::dialogs::propertybindings;
using namespace vantrix::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

template<typename T>
using Field = TextFieldPropertyBinding<T>;

/// A locale that writes 3,14 and 1.234, as a German user has it.
struct CommaNumbers : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class GermanLocale
{
public:
    GermanLocale()
        : m_global(std::locale::global(std::locale(std::locale::classic(), new CommaNumbers)))
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }
    ~GermanLocale()
    {
        std::locale::global(m_global);
        QLocale::setDefault(m_qt);
    }

private:
    QLocale m_qt;
    std::locale m_global;
};

class TextFieldPropertyBindingTest : public testing::Test
{
protected:
    TextFieldPropertyBindingTest()
    {
        host.reset();
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(other);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    template<typename T>
    std::unique_ptr<Field<T>> bind(boost::shared_ptr<Property<T>> const& property)
    {
        return std::make_unique<Field<T>>(field, property, BindingInterface::OnIdle, Field<T>::CursorAtEnd);
    }

    std::string text() const { return textOf(*field); }

    RecordingHost& host = RecordingHost::instance();
    QWidget window;
    QLineEdit* field = new QLineEdit;
    QLineEdit* other = new QLineEdit;
    boost::shared_ptr<Property<long>> count =
        boost::make_shared<Property<long>>(10, boost::make_shared<BoundedValueValidator<long>>(2, 100));
    boost::shared_ptr<Property<double>> length = boost::make_shared<Property<double>>(1.0);
};

} // namespace

TEST_F(TextFieldPropertyBindingTest, EnteredTextReachesThePropertyUnderTheLock)
{
    auto const binding = bind(count);
    EXPECT_EQ(text(), "10");
    int lockDepth = 0;
    count->connectToValueChangedSignal([&](long) { lockDepth = host.lockDepth; });
    enter(*field, "42");
    EXPECT_EQ(count->value(), 42);
    EXPECT_EQ(lockDepth, 1);
    EXPECT_FALSE(host.lastLockRecorded);
    EXPECT_EQ(host.lockDepth, 0);
    typeInto(*field, "43");
    other->setFocus();
    EXPECT_EQ(count->value(), 43) << "leaving the field ends the edit too";
}

TEST_F(TextFieldPropertyBindingTest, AnEnteredNumberIsShownInCanonicalForm)
{
    auto const binding = bind(length);
    enter(*field, "2.50e1");
    EXPECT_EQ(text(), "25");
    enter(*field, "1e300");
    EXPECT_EQ(text(), "1e+300");
}

TEST_F(TextFieldPropertyBindingTest, OutOfRangeShowsTheValidatorsMessageAndTheOldValue)
{
    auto const binding = bind(count);
    enter(*field, "101");
    EXPECT_THAT(host.messages,
                ElementsAre("The value must be greater than or equal to 2 and less than or equal to 100."));
    EXPECT_EQ(text(), "10");
    EXPECT_EQ(count->value(), 10);
    typeInto(*field, "1");
    other->setFocus();
    EXPECT_EQ(host.messages.size(), 2u);
    EXPECT_TRUE(field->hasFocus()) << "the user is sent back to the refused field";
    EXPECT_EQ(text(), "10");
}

TEST_F(TextFieldPropertyBindingTest, ARefusalWithoutTextRestoresSilently)
{
    struct RefuseAll : ValidatorInterface<long>
    {
        ValidationResult validate(long const& value) const override
        {
            ValidationResult result;
            if (value != 1) {
                result.setErrorString("");
            }
            return result;
        }
    };
    auto const property = boost::make_shared<Property<long>>(1, boost::make_shared<RefuseAll>());
    auto const binding = bind(property);
    enter(*field, "2");
    EXPECT_THAT(host.messages, IsEmpty());
    EXPECT_EQ(text(), "1");
}

TEST_F(TextFieldPropertyBindingTest, TextThatIsNoNumberIsDroppedAndSaidInTheStatusLine)
{
    auto const binding = bind(length);
    for (char const* const refused : {"3,14", "-", "1e", "1,000.5"}) {
        host.statusMessages.clear();
        typeInto(*field, refused);
        other->setFocus();
        EXPECT_EQ(text(), "1") << refused;
        EXPECT_THAT(host.statusMessages, ElementsAre(testing::HasSubstr(std::string("\"") + refused + "\"")));
    }
    EXPECT_EQ(length->value(), 1.0);
    EXPECT_THAT(host.messages, IsEmpty());
    field->setText(QStringLiteral("3,14"));
    EXPECT_FALSE(binding->editingFinished());
    EXPECT_EQ(text(), "1");
}

TEST_F(TextFieldPropertyBindingTest, AnUnfinishedTextStaysWhileTheUserLooksAtAnotherWindow)
{
    auto const binding = bind(length);
    typeInto(*field, "-");
    QFocusEvent windowChange(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(field, &windowChange);
    EXPECT_EQ(text(), "-");
}

TEST_F(TextFieldPropertyBindingTest, ConfirmingAnUntouchedFieldKeepsDigitsThatAreNotShown)
{
    double const third = 1.0 / 3.0;
    length->setValue(third);
    auto const binding = bind(length);
    EXPECT_EQ(text(), "0.333333");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(length->value(), third);
}

TEST_F(TextFieldPropertyBindingTest, NumbersAreReadAndWrittenInTheCLocale)
{
    GermanLocale const german;
    length->setValue(1234.5);
    count->setValue(100);
    auto const binding = bind(length);
    EXPECT_EQ(text(), "1234.5");
    enter(*field, "2500.25");
    EXPECT_EQ(length->value(), 2500.25);
    EXPECT_EQ(text(), "2500.25");
    typeInto(*field, "3,14");
    other->setFocus();
    EXPECT_EQ(length->value(), 2500.25);

    auto const many = boost::make_shared<Property<long>>(1234567);
    auto const countBinding = bind(many);
    EXPECT_EQ(text(), "1234567");
}

TEST_F(TextFieldPropertyBindingTest, KeepsADesignersValidatorAndReplacesItsOwn)
{
    QString const marker = LineEditPropertyBindingAbstract<long>::ValidationInstaller::m_installedValidatorMarker;
    EXPECT_EQ(marker, QStringLiteral("VantrixBindingInstalledValidator"));
    {
        auto const first = bind(count);
        QPointer<QValidator const> const installed = field->validator();
        ASSERT_TRUE(qobject_cast<QIntValidator const*>(installed));
        EXPECT_EQ(installed->objectName(), marker);
        auto const second = bind(length);
        EXPECT_TRUE(installed.isNull());
        EXPECT_TRUE(qobject_cast<QDoubleValidator const*>(field->validator()));
    }
    auto* const designers = new QIntValidator(1, 7, field);
    designers->setObjectName(QStringLiteral("onlySeven"));
    field->setValidator(designers);
    auto const third = bind(length);
    EXPECT_EQ(field->validator(), designers);
}

TEST_F(TextFieldPropertyBindingTest, OnIdleWritesTheWidgetOnceATurn)
{
    auto const binding = bind(count);
    QStringList shown;
    QObject::connect(field, &QLineEdit::textChanged, [&](QString const& now) { shown << now; });
    for (long value = 11; value <= 20; ++value) {
        count->setValue(value);
    }
    EXPECT_EQ(text(), "10");
    idle();
    EXPECT_EQ(shown, QStringList{QStringLiteral("20")});
}

TEST_F(TextFieldPropertyBindingTest, ImmediateWritesTheWidgetWithinTheChange)
{
    Field<long> const binding(field, count, BindingInterface::Immediate, Field<long>::CursorAtEnd);
    count->setValue(33);
    EXPECT_EQ(text(), "33");
}

TEST_F(TextFieldPropertyBindingTest, ListeningTwiceAnswersOnce)
{
    Field<long> binding(field, count, BindingInterface::Immediate, Field<long>::CursorAtEnd);
    auto const listeners = count->valueChangedListenerCount();
    binding.startListeningToProperty();
    EXPECT_EQ(count->valueChangedListenerCount(), listeners);
}

TEST_F(TextFieldPropertyBindingTest, CursorAtStartShowsTheBeginningOfALongValue)
{
    auto const name = boost::make_shared<Property<std::string>>("a long name of many letters");
    Field<std::string> const binding(field, name, BindingInterface::Immediate, Field<std::string>::CursorAtStart);
    EXPECT_EQ(field->cursorPosition(), 0);
    name->setValue("gr\xC3\xBC\xC3\x9F dich");
    EXPECT_EQ(text(), "gr\xC3\xBC\xC3\x9F dich");
    EXPECT_EQ(field->cursorPosition(), 0);
    EXPECT_FALSE(field->hasSelectedText());
    EXPECT_FALSE(field->validator());

    Field<std::string> const atEnd(other, name, BindingInterface::Immediate, Field<std::string>::CursorAtEnd);
    EXPECT_EQ(other->cursorPosition(), other->text().size());
}

TEST_F(TextFieldPropertyBindingTest, OutlivesItsWidget)
{
    auto const binding = bind(count);
    delete field;
    count->setValue(50);
    idle();
    binding->updateWidget();
    binding->updateSensitivity();
    EXPECT_FALSE(binding->widget());
    EXPECT_FALSE(binding->editingFinished());
}

TEST_F(TextFieldPropertyBindingTest, APendingUpdateDoesNotReachADestroyedBinding)
{
    auto binding = bind(count);
    count->setValue(50);
    binding.reset();
    idle();
    EXPECT_EQ(text(), "10");
    enter(*field, "60");
    EXPECT_EQ(count->value(), 50) << "nor the user's text the property";
}
