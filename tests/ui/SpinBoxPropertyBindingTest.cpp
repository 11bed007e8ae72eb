#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "support/RecordingHost.h"
#include "support/UserInput.h"
#include "ui/IntegerSpinBox.h"
#include "ui/SpinBoxDoublePropertyBinding.h"
#include "ui/SpinBoxIntPropertyBinding.h"
#include "ui/SpinBoxLgIndexPropertyBinding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace vantrix;
using namespace vantrix::sdk::ui::common;
using namespace vantrix::sdk::ui::dialogs::propertybindings;
using test::RecordingHost;

QLineEdit& fieldOf(QAbstractSpinBox& spinBox)
{
    return *spinBox.findChild<QLineEdit*>();
}

/// Doubles upwards, halves downwards.
class Doubling : public sdk::ui::propertymanager::SpinBoxIncDecCalculatorBase
{
public:
    Doubling()
        : SpinBoxIncDecCalculatorBase(1.0)
    {}
    double increment(double current) override { return 2.0 * current; }
    double decrement(double current) override { return current / 2.0; }
};

template<typename Box, typename T>
struct Bound
{
    explicit Bound(T const& value, T const& minimum, T const& maximum)
        : property(
              boost::make_shared<Property<T>>(value, boost::make_shared<BoundedValueValidator<T>>(minimum, maximum)))
    {
        RecordingHost::instance().reset();
        property->connectToValueChangedSignal([this](T const&) { ++changes; });
        box.show();
    }

    boost::shared_ptr<Property<T>> property;
    Box box;
    int changes = 0;
};

TEST(ScientificSpinBox, ShowsEveryNumberSoThatItReadsBackUnchanged)
{
    QScientificSpinBox box;
    for (double const value : {0.0, 1.0, -2.5, 1.0 / 3.0, 12345678.9, 1e8, 6.02214076e23, 1.25e-7, -1e-300,
                               std::nextafter(1.0, 2.0), std::numeric_limits<double>::max()}) {
        box.setValue(value);
        EXPECT_EQ(box.value(), value);
        EXPECT_EQ(box.valueFromText(box.textFromValue(value)), value);
        test::enter(fieldOf(box), fieldOf(box).text().toUtf8().constData());
        EXPECT_EQ(box.value(), value);
    }
    EXPECT_EQ(box.textFromValue(0.1).toStdString(), "0.1");
    EXPECT_EQ(box.textFromValue(100000.0).toStdString(), "100000");
    EXPECT_EQ(box.textFromValue(2.5e10).toStdString(), "2.5e+10");
    EXPECT_EQ(box.decimals(), 6);
}

TEST(SpinBoxDoubleBinding, TakesAValueWhenEditingIsFinishedOnly)
{
    Bound<QScientificSpinBox, double> bound(1.0, 0.0, 1e6);
    SpinBoxDoublePropertyBinding const binding(&bound.box, bound.property, BindingInterface::Immediate);
    test::typeInto(fieldOf(bound.box), "2.5e3");
    EXPECT_EQ(bound.changes, 0);
    QTest::keyClick(&bound.box, Qt::Key_Return);
    EXPECT_EQ(bound.property->value(), 2500.0);
    EXPECT_EQ(bound.changes, 1);
    EXPECT_EQ(test::textOf(fieldOf(bound.box)), "2500");

    bound.property->setValue(7.0);
    EXPECT_EQ(test::textOf(fieldOf(bound.box)), "7");
}

TEST(SpinBoxDoubleBinding, TellsThatAValueIsRefusedAndShowsTheOldOne)
{
    Bound<QScientificSpinBox, double> bound(1.0, 0.0, 10.0);
    SpinBoxDoublePropertyBinding const binding(&bound.box, bound.property, BindingInterface::Immediate);
    test::enter(fieldOf(bound.box), "11");
    EXPECT_EQ(bound.property->value(), 1.0);
    EXPECT_EQ(RecordingHost::instance().messages.size(), 1U);
    EXPECT_EQ(test::textOf(fieldOf(bound.box)), "1");
}

TEST(SpinBoxDoubleBinding, NeverReadsACommaAsAnythingElse)
{
    Bound<QScientificSpinBox, double> bound(1.0, -1e6, 1e6);
    SpinBoxDoublePropertyBinding const binding(&bound.box, bound.property, BindingInterface::Immediate);
    for (auto const* text : {"3,5", "3,14", "1,000", "-2,5", "1.5,"}) {
        test::enter(fieldOf(bound.box), text);
        EXPECT_EQ(bound.property->value(), 1.0) << text;
        EXPECT_EQ(test::textOf(fieldOf(bound.box)), "1");
    }
}

TEST(SpinBoxDoubleBinding, StepsAsTheCalculatorSays)
{
    Bound<QScientificSpinBox, double> bound(1.0, 0.0, 100.0);
    SpinBoxDoublePropertyBinding const binding(&bound.box, bound.property, BindingInterface::Immediate,
                                               boost::make_shared<Doubling>());
    QTest::keyClick(&bound.box, Qt::Key_Up);
    EXPECT_EQ(bound.property->value(), 2.0);
    test::typeInto(fieldOf(bound.box), "10");
    QTest::keyClick(&bound.box, Qt::Key_Down);
    EXPECT_EQ(bound.property->value(), 5.0);
}

TEST(SpinBoxDoubleBinding, APageKeyIsOneInputOfTenSteps)
{
    Bound<QScientificSpinBox, double> bound(1.0, 0.0, 100.0);
    SpinBoxDoublePropertyBinding const binding(
        &bound.box, bound.property, BindingInterface::Immediate,
        boost::make_shared<sdk::ui::propertymanager::SpinBoxIncDecCalculatorBase>(0.5));
    QTest::keyClick(&bound.box, Qt::Key_PageUp);
    EXPECT_EQ(bound.property->value(), 6.0);
    EXPECT_EQ(bound.changes, 1);
    QTest::keyClick(&bound.box, Qt::Key_Down);
    EXPECT_EQ(bound.property->value(), 5.5);
}

TEST(SpinBoxIntBinding, StepsAndTakesWholeNumbers)
{
    Bound<IntegerSpinBox, int> bound(3, 1, 5000);
    bound.box.setRange(1, 5000);
    SpinBoxIntPropertyBinding const binding(&bound.box, bound.property, BindingInterface::OnIdle);
    EXPECT_EQ(bound.box.value(), 3);
    QTest::keyClick(&bound.box, Qt::Key_Down);
    EXPECT_EQ(bound.property->value(), 2);
    test::enter(fieldOf(bound.box), "400");
    EXPECT_EQ(bound.property->value(), 400);
    test::enter(fieldOf(bound.box), "1,5");
    EXPECT_EQ(bound.property->value(), 400) << "not 15";
}

TEST(SpinBoxIntBinding, LeavesAValueAloneThatTheSpinBoxCannotShow)
{
    Bound<QSpinBox, int> bound(4000, 1, 5000);
    bound.box.setRange(1, 99);
    SpinBoxIntPropertyBinding const binding(&bound.box, bound.property, BindingInterface::Immediate);
    EXPECT_EQ(bound.box.value(), 99);
    EXPECT_EQ(bound.property->value(), 4000);
    EXPECT_EQ(bound.changes, 0);
}

TEST(SpinBoxLgIndexBinding, ShowsAndReadsMxNotation)
{
    Bound<QLgIndexSpinBox, long> bound(0, -100, 100);
    SpinBoxLgIndexPropertyBinding const binding(&bound.box, bound.property, BindingInterface::Immediate);
    EXPECT_EQ(test::textOf(fieldOf(bound.box)), "Mx");
    test::enter(fieldOf(bound.box), "mx - 12");
    EXPECT_EQ(bound.property->value(), -12);
    EXPECT_EQ(test::textOf(fieldOf(bound.box)), "Mx-12");
    test::enter(fieldOf(bound.box), "7");
    EXPECT_EQ(bound.property->value(), 7);
    test::enter(fieldOf(bound.box), "Mx-");
    EXPECT_EQ(bound.property->value(), 7);
    QTest::keyClick(&bound.box, Qt::Key_Up);
    EXPECT_EQ(bound.property->value(), 8);
}

} // namespace
