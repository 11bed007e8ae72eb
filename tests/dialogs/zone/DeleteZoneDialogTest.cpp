#include "dialogs/zone/DeleteZoneDialog.h"

#include "kernel/OpenData.h"
#include "support/KernelDialogTest.h"

#include <QListView>

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using testing::ElementsAre;
using testing::IsEmpty;
using vantrix::kernel::Kernel;
using vantrix::kernel::OpenData;

namespace {

/// The dialog over the sample of four lines, a zone each.
class DeleteZoneDialogTest : public KernelDialogTest
{
protected:
    DeleteZoneDialogTest()
    {
        vantrix::sdk::AppLock const lock;
        OpenData(Kernel::instance()).sample("lines");
    }

    static QListView& list(QDialog const& dialog) { return find<QListView>(dialog, "deleteZone_Select_MList"); }

    static void select(QDialog const& dialog, std::initializer_list<int> rows)
    {
        QListView& view = list(dialog);
        Qt::KeyboardModifiers modifiers;
        for (int const row : rows) {
            QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers,
                              view.visualRect(view.model()->index(row, 0)).center());
            modifiers = Qt::ControlModifier;
        }
        idle();
    }

    static void pressDelete(QDialog const& dialog)
    {
        for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == QStringLiteral("&Delete")) {
                QTest::mouseClick(button, Qt::LeftButton);
                idle();
                return;
            }
        }
        throw std::runtime_error("no Delete button");
    }

    static std::vector<std::string> names(QDialog const& dialog)
    {
        std::vector<std::string> result;
        QAbstractItemModel const& model = *list(dialog).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            result.push_back(model.index(row, 0).data().toString().toStdString());
        }
        return result;
    }

    static int selectedRows(QDialog const& dialog)
    {
        return static_cast<int>(list(dialog).selectionModel()->selectedIndexes().size());
    }
};

} // namespace

TEST_F(DeleteZoneDialogTest, DeletesTheSelectedZonesAsOneStepThatUndoTakesBack)
{
    auto const& dialog = launch<DeleteZoneDialog>();
    std::vector<std::string> const all = names(dialog);
    ASSERT_EQ(all.size(), 4u);
    select(dialog, {0, 2});
    pressDelete(dialog);
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), 2);
    EXPECT_EQ(selectedRows(dialog), 0);
    ASSERT_EQ(names(dialog).size(), 2u);
    EXPECT_NE(names(dialog)[0].find("0.08"), std::string::npos) << names(dialog)[0];
    EXPECT_THAT(frontEnd.messages, IsEmpty());

    ASSERT_TRUE(VtxUtilUndo());
    idle();
    EXPECT_EQ(names(dialog), all);
}

TEST_F(DeleteZoneDialogTest, NothingSelectedAndEverythingSelectedAreRefusedAndTheSelectionStays)
{
    auto const& dialog = launch<DeleteZoneDialog>();
    pressDelete(dialog);
    EXPECT_THAT(frontEnd.messages, ElementsAre("No zones are selected"));

    list(dialog).setFocus();
    QTest::keyClick(&list(dialog), Qt::Key_A, Qt::ControlModifier);
    pressDelete(dialog);
    EXPECT_THAT(frontEnd.messages, ElementsAre("No zones are selected", "Cannot delete the last zone in a data set."));
    EXPECT_EQ(selectedRows(dialog), 4);
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), 4);
}

TEST_F(DeleteZoneDialogTest, CannotBeUsedWithoutADataSet)
{
    EXPECT_TRUE(DeleteZoneDialog::relevance()->isRelevant());
    Kernel::instance().reset();
    EXPECT_FALSE(DeleteZoneDialog::relevance()->isRelevant());
}
