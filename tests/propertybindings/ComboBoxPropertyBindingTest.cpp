#include "propertybindings/ComboBoxPropertyBinding.h"

#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "propertybindings/models/BasicSizeListModel.h"
#include "propertybindings/models/ChangingListModel.h"
#include "support/RecordingHost.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using namespace vantrix;
using namespace vantrix::sdk::ui::dialogs::propertybindings;
using sdk::OnIdleActionPerformerSingleShot;
using test::ChangingListModel;
using test::RecordingHost;

template<typename T>
struct Bound
{
    Bound(boost::shared_ptr<models::ListModelInterface<T> const> model, T const& value, bool isEditable = false,
          BindingInterface::ModelUpdateMode mode = BindingInterface::UpdateAlways)
        : property(boost::make_shared<Property<T>>(value))
    {
        combo.setEditable(isEditable);
        combo.show();
        binding = std::make_unique<ComboBoxPropertyBinding<T>>(combo, property, std::move(model), mode);
        property->connectToValueChangedSignal([this](T const&) { ++changes; });
    }

    void type(char const* text)
    {
        combo.lineEdit()->selectAll();
        QTest::keyClicks(combo.lineEdit(), QString::fromUtf8(text));
        QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
    }

    boost::shared_ptr<Property<T>> property;
    int changes = 0;
    QComboBox combo;
    std::unique_ptr<ComboBoxPropertyBinding<T>> binding;
};

boost::shared_ptr<ChangingListModel> list(std::vector<int> rows)
{
    return boost::make_shared<ChangingListModel>(std::move(rows));
}

class ComboBox : public testing::Test
{
protected:
    ComboBox() { host.reset(); }

    RecordingHost& host = RecordingHost::instance();
};

TEST_F(ComboBox, ShowsTheRowOfTheValueAndSetsWhatTheUserChooses)
{
    Bound<int> bound(list({10, 20, 30}), 20);
    EXPECT_EQ(bound.combo.currentIndex(), 1);
    QTest::keyClick(&bound.combo, Qt::Key_Down);
    EXPECT_EQ(bound.property->value(), 30);
    EXPECT_EQ(bound.changes, 1);
}

TEST_F(ComboBox, RewritesItselfOnceForABurstOfChanges)
{
    Bound<int> bound(list({10, 20, 30}), 10);
    int rewrites = 0;
    QObject::connect(&bound.combo, &QComboBox::currentIndexChanged, [&rewrites] { ++rewrites; });
    for (int i = 0; i < 10; ++i) {
        bound.property->setValue(i % 2 ? 30 : 20);
    }
    EXPECT_EQ(rewrites, 0);
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(rewrites, 1);
    EXPECT_EQ(bound.combo.currentIndex(), 2);
}

TEST_F(ComboBox, ShowsItsFirstRowForAnUnknownValueUntilTheUserChoosesIt)
{
    Bound<int> bound(list({10, 20}), 99);
    EXPECT_EQ(bound.combo.currentIndex(), 0);
    EXPECT_EQ(bound.property->value(), 99);
    bound.combo.showPopup();
    QTest::keyClick(bound.combo.view(), Qt::Key_Return);
    EXPECT_EQ(bound.property->value(), 10);
}

TEST_F(ComboBox, ChoosingThePresentValueChangesNothing)
{
    Bound<int> bound(list({10, 20}), 10);
    bound.combo.showPopup();
    QTest::keyClick(bound.combo.view(), Qt::Key_Return);
    EXPECT_EQ(bound.changes, 0);
}

TEST_F(ComboBox, FollowsTheListAndLeavesThePropertyAlone)
{
    auto const model = list({10, 20, 30});
    Bound<int> bound(model, 30);
    model->remove(0);
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(bound.combo.currentIndex(), 1);
    model->replaceAll({30, 40});
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(bound.combo.currentIndex(), 0);
    model->replaceAll({});
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(bound.combo.count(), 0);
    EXPECT_EQ(bound.property->value(), 30);
    EXPECT_EQ(bound.changes, 0);
}

TEST_F(ComboBox, LeavesTheMarkedRowAloneWhileThePopupIsOpen)
{
    Bound<int> bound(list({10, 20, 30}), 10, false, BindingInterface::DeferWhileBusy);
    bound.combo.showPopup();
    bound.property->setValue(30);
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(bound.combo.currentIndex(), 0);
    bound.combo.hidePopup();
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(bound.combo.currentIndex(), 2);
}

TEST_F(ComboBox, TellsTheUserWhenThePropertyRefusesTheRow)
{
    QComboBox combo;
    auto const property = boost::make_shared<Property<int>>(10, boost::make_shared<BoundedValueValidator<int>>(0, 15));
    ComboBoxPropertyBinding<int> const binding(combo, property, list({10, 20}), BindingInterface::UpdateAlways);
    combo.show();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(property->value(), 10);
    EXPECT_EQ(host.messages.size(), 1U);
    EXPECT_EQ(combo.currentIndex(), 1);
}

TEST_F(ComboBox, TakesTypedSizesThroughTheListAndNeverAddsARow)
{
    using models::BasicSizeListModel;
    Bound<double> bound(boost::make_shared<BasicSizeListModel>(BasicSizeListModel::LineThickness), 0.1, true);
    EXPECT_EQ(bound.combo.currentText().toStdString(), "0.1");
    bound.property->setValue(0.33);
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(bound.combo.currentText().toStdString(), "0.33");

    bound.type("0.7");
    EXPECT_DOUBLE_EQ(bound.property->value(), 0.7);
    EXPECT_EQ(bound.combo.currentText().toStdString(), "0.7");
    bound.type("Huge");
    EXPECT_DOUBLE_EQ(bound.property->value(), 1.0);
    EXPECT_EQ(bound.combo.currentText().toStdString(), "1");
    EXPECT_EQ(host.messages.size(), 0U);

    bound.type("0,7");
    EXPECT_DOUBLE_EQ(bound.property->value(), 1.0);
    EXPECT_EQ(bound.combo.currentText().toStdString(), "1");
    ASSERT_EQ(host.messages.size(), 1U);
    EXPECT_EQ(host.messages[0], "\"0,7\" cannot be used here. Please enter a size in percent from 0.0001 to 100.");
    EXPECT_EQ(bound.combo.count(), 5);
}

TEST_F(ComboBox, MayGoBeforeOrAfterItsBinding)
{
    auto const property = boost::make_shared<Property<int>>(10);
    auto combo = std::make_unique<QComboBox>();
    ComboBoxPropertyBinding<int> const binding(*combo, property, list({10, 20}), BindingInterface::DeferWhileBusy);
    property->setValue(20);
    combo.reset();
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(binding.widget(), nullptr);
}

} // namespace
