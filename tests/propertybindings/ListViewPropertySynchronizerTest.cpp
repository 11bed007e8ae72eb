#include "propertybindings/ListViewPropertySynchronizer.h"

#include "property/Property.h"
#include "propertybindings/ListViewPropertyBinding.h"
#include "propertybindings/models/ChangingListModel.h"

#include <QTest>
#include <gtest/gtest.h>

#include <numeric>

namespace {

using namespace vantrix;
using namespace vantrix::sdk::ui::dialogs::propertybindings;
using sdk::OnIdleActionPerformerSingleShot;
using Values = std::set<int>;
using Synchronizer = ListViewPropertySynchronizer<Values>;

struct BoundList
{
    explicit BoundList(std::vector<int> rows, BindingInterface::WidgetUpdateMode_e mode = BindingInterface::OnIdle)
        : model(boost::make_shared<test::ChangingListModel>(std::move(rows)))
        , property(boost::make_shared<Property<Values>>(Values{}))
        , manners(view, ListViewPropertyBinding::ExtendedSelection)
        , synchronizer(view, property, model, mode)
    {
        property->connectToValueChangedSignal([this](Values const&) { ++changes; });
        view.resize(200, 300);
        view.show();
    }

    void click(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers,
                          view.visualRect(view.model()->index(row, 0)).center());
    }

    Values selectedRows() const
    {
        Values rows;
        for (QModelIndex const& index : view.selectionModel()->selectedIndexes()) {
            rows.insert(index.row());
        }
        return rows;
    }

    QListView view;
    boost::shared_ptr<test::ChangingListModel> model;
    boost::shared_ptr<Property<Values>> property;
    ListViewPropertyBinding manners;
    Synchronizer synchronizer;
    int changes = 0;
};

TEST(ListViewPropertySynchronizer, KeepsSelectionAndPropertyEqual)
{
    BoundList list({30, 10, 20});
    list.click(0);
    list.click(2, Qt::ControlModifier);
    EXPECT_EQ(list.property->value(), (Values{20, 30}));
    EXPECT_EQ(list.changes, 2);

    list.property->setValue({10, 99});
    EXPECT_EQ(list.selectedRows(), (Values{1}));
    EXPECT_EQ(list.property->value(), (Values{10, 99}));
    EXPECT_EQ(list.changes, 3);
}

TEST(ListViewPropertySynchronizer, DropsTheValuesOfRowsThatAreGone)
{
    for (auto const mode : {BindingInterface::Immediate, BindingInterface::OnIdle}) {
        BoundList list({1, 2, 3, 4}, mode);
        list.property->setValue({2, 4});
        list.model->remove(1);
        list.model->insert(0, 7);
        OnIdleActionPerformerSingleShot::performPending();
        EXPECT_EQ(list.property->value(), (Values{4})) << mode;
        EXPECT_EQ(list.selectedRows(), (Values{3})) << mode;
        list.model->replaceAll({4, 1});
        OnIdleActionPerformerSingleShot::performPending();
        EXPECT_EQ(list.selectedRows(), (Values{0})) << mode;
        list.model->replaceAll({});
        OnIdleActionPerformerSingleShot::performPending();
        EXPECT_EQ(list.property->value(), Values{}) << mode;
    }
}

TEST(ListViewPropertySynchronizer, SynchronizesOnceAfterABurstOfChanges)
{
    BoundList list({1, 2, 3, 4, 5});
    list.property->setValue({1, 2, 3});
    list.changes = 0;
    list.model->remove(0);
    list.model->remove(0);
    list.model->replace(0, 3);
    EXPECT_EQ(list.changes, 0);
    OnIdleActionPerformerSingleShot::performPending();
    EXPECT_EQ(list.changes, 1);
    EXPECT_EQ(list.property->value(), (Values{3}));
}

TEST(ListViewPropertySynchronizer, SelectsAndDeselectsALongListAtAStroke)
{
    std::vector<int> rows(100000);
    std::iota(rows.begin(), rows.end(), 1);
    BoundList list(rows);
    list.view.setFocus();
    QTest::keyClick(&list.view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.property->value().size(), rows.size());
    EXPECT_EQ(list.changes, 1);
    list.click(3);
    EXPECT_EQ(list.property->value(), (Values{4}));
    EXPECT_EQ(list.changes, 2);

    Values everySecond;
    for (int value = 2; value <= 100000; value += 2) {
        everySecond.insert(everySecond.end(), value);
    }
    list.property->setValue(everySecond);
    EXPECT_EQ(list.view.selectionModel()->selection().size(), 50000);
    list.property->setValue({});
    EXPECT_FALSE(list.view.selectionModel()->hasSelection());
    EXPECT_EQ(list.changes, 4);
}

} // namespace
