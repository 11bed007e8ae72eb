#include "propertybindings/models/QListModel.h"
#include "propertybindings/models/BasicSizeListModel.h"
#include "propertybindings/models/ChangingListModel.h"
#include "propertybindings/models/ListModelProxy.h"

#include <QListView>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

using namespace vantrix::sdk::ui::dialogs::propertybindings;
using namespace vantrix::sdk::ui::dialogs::propertybindings::models;
using vantrix::test::ChangingListModel;

TEST(PremappedListModel, FindsTheRowOfAValueAndNoneForAnUnknownOne)
{
    PremappedListModel<StreamDir_e> const model(
        {{"Reverse", StreamDir_Reverse}, {"Forward", StreamDir_Forward}, {"Again", StreamDir_Reverse}});
    EXPECT_EQ(model.size(), 3);
    EXPECT_EQ(model.getStr(1), "Forward");
    EXPECT_EQ(model.getStrForEdit(1), "Forward");
    EXPECT_EQ(model.indexOf(StreamDir_Forward), 1);
    EXPECT_EQ(model.indexOf(StreamDir_Reverse), 0);
    EXPECT_EQ(model.indexOf(StreamDir_Both), -1);
}

TEST(QListModel, ShowsTextsValuesAndNothingElse)
{
    ChangingListModel list({30, 10});
    models::QListModel<int> const model(list);
    QModelIndex const second = model.index(1);
    EXPECT_EQ(model.data(second, Qt::DisplayRole).toString().toStdString(), "row 10");
    EXPECT_EQ(model.data(second, Qt::ToolTipRole).toString().toStdString(), "row 10");
    EXPECT_EQ(model.data(second, Qt::EditRole).toString().toStdString(), "row 10");
    EXPECT_EQ(model.data(second, 1808), QVariant(10));
    EXPECT_FALSE(model.data(second, Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.data(model.index(2), Qt::DisplayRole).isValid());
    EXPECT_EQ(model.rowCount(second), 0);

    list.editable = true;
    EXPECT_EQ(model.data(second, Qt::EditRole).toString().toStdString(), "10");
}

TEST(QListModel, DisablesHeadersAndNeverLetsThemBeEdited)
{
    ChangingListModel list({1, 2});
    list.headerRow = 0;
    list.editable = true;
    models::QListModel<int> const model(list);
    EXPECT_FALSE(model.flags(model.index(0)) & (Qt::ItemIsEnabled | Qt::ItemIsEditable));
    EXPECT_TRUE(model.flags(model.index(1)) & Qt::ItemIsEnabled);
    EXPECT_TRUE(model.flags(model.index(1)) & Qt::ItemIsEditable);
    list.editable = false;
    EXPECT_FALSE(model.flags(model.index(1)) & Qt::ItemIsEditable);
}

TEST(QListModel, RefusesATextForAListThatCannotBeEdited)
{
    ChangingListModel list({1, 2});
    models::QListModel<int> model(list);
    EXPECT_FALSE(model.setData(model.index(0), QStringLiteral("7")));
    EXPECT_EQ(list.get(0), 1);
}

TEST(QListModel, KeepsAViewInStepWithEveryKindOfChange)
{
    ChangingListModel list({1, 2, 3});
    models::QListModel<int> model(list);
    QListView view;
    view.setModel(&model);
    view.show();
    QPersistentModelIndex const third(model.index(2));
    QSignalSpy const changed(&model, &QAbstractItemModel::dataChanged);

    list.insert(0, 9);
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(third.row(), 3);
    list.remove(1);
    EXPECT_EQ(third.row(), 2);
    list.replace(0, 5);
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed.at(0).at(0).toModelIndex().row(), 0);

    QSignalSpy const reset(&model, &QAbstractItemModel::modelReset);
    list.replaceAll({4, 3, 2, 1, 0});
    EXPECT_EQ(reset.size(), 1);
    ASSERT_EQ(changed.size(), 2);
    EXPECT_EQ(changed.at(1).at(1).toModelIndex().row(), 4);
    list.replaceAll({});
    EXPECT_EQ(reset.size(), 2);
    EXPECT_EQ(changed.size(), 2);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(ListModelProxy, PassesOnTheListThatItPresentsAndNoOther)
{
    auto const first = boost::make_shared<ChangingListModel>(std::vector<int>{1});
    auto const second = boost::make_shared<ChangingListModel>(std::vector<int>{5, 6});
    ListModelProxy<int> const proxy;
    int resets = 0;
    proxy.connectToDataChangedSignal([&resets] { ++resets; });
    EXPECT_EQ(proxy.size(), 0);
    EXPECT_EQ(proxy.indexOf(1), -1);

    proxy.setModel(first);
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(proxy.get(0), 1);
    proxy.setModel(second);
    EXPECT_EQ(resets, 2);
    EXPECT_EQ(proxy.indexOf(6), 1);
    proxy.setModel(second);
    first->replaceAll({2});
    EXPECT_EQ(resets, 2);
    second->replaceAll({7});
    EXPECT_EQ(resets, 3);
    EXPECT_EQ(proxy.getStr(0), "row 7");
}

TEST(BasicSizeListModel, OffersFiveGrowingSizesOfEachKind)
{
    for (auto const kind :
         {BasicSizeListModel::LineThickness, BasicSizeListModel::SymbolSize, BasicSizeListModel::PatternLength}) {
        BasicSizeListModel const model(kind);
        ASSERT_EQ(model.size(), 5);
        EXPECT_EQ(model.getStr(0), "Tiny");
        EXPECT_EQ(model.getStr(4), "Huge");
        for (int row = 1; row < model.size(); ++row) {
            EXPECT_LT(model.get(row - 1), model.get(row));
        }
    }
}

TEST(BasicSizeListModel, TakesATypedNumberOrNameAndRefusesTheRest)
{
    BasicSizeListModel const model(BasicSizeListModel::LineThickness);
    std::vector<double> entered;
    model.connectToValueEnteredSignal([&entered](double value) { entered.push_back(value); });

    EXPECT_TRUE(model.setEditedItem("0.35", 0));
    EXPECT_TRUE(model.setEditedItem(" 1e-1 ", 0));
    EXPECT_TRUE(model.setEditedItem("large", 0));
    EXPECT_TRUE(model.setEditedItem("100", 0));
    EXPECT_EQ(entered, (std::vector<double>{0.35, 0.1, model.get(3), 100.0}));

    for (char const* text : {"", "0", "-1", "100.1", "0,35", "3 mm", "nan", "inf", "Gigantic"}) {
        EXPECT_FALSE(model.setEditedItem(text, 0)) << text;
    }
    EXPECT_EQ(entered.size(), 4U);
    EXPECT_EQ(model.size(), 5);
    EXPECT_EQ(model.expectedText(), "a size in percent from 0.0001 to 100");
}

} // namespace
