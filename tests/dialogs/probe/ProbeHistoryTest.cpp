#include "ProbeDialogsFixture.h"

#include "dialogs/probe/ProbeAtDialog.h"
#include "dialogs/probe/ProbeHistory.h"
#include "dialogs/probe/ProbeHistoryDialog.h"
#include "dialogs/probe/ProbePositionsDialog.h"
#include "toolbox/Set.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTableView>

#include <numeric>

namespace vantrix::test {
namespace {

using sdk::ui::dialogs::ProbeHistory;
using sdk::ui::dialogs::ProbeHistoryDialog;
using sdk::ui::dialogs::ProbePositionsDialog;

class ProbeHistoryTest : public ProbeDialogsTest
{
protected:
    ProbeHistoryTest() { clear(); }
    ~ProbeHistoryTest() override { clear(); }

    void SetUp() override
    {
        {
            sdk::AppLock const lock;
            ASSERT_TRUE(VtxUtilCreateRectangularZone(6, 5, 1, 0, 0, 0, 5, 4, 0, FieldDataType_Double));
        }
        launch<ProbeDialog>();
    }

    static void clear()
    {
        std::vector<int> rows(static_cast<std::size_t>(history().rowCount()));
        std::iota(rows.begin(), rows.end(), 0);
        history().remove(rows);
    }

    static ProbeHistory& history() { return ProbeHistory::getInstance(); }

    static std::string text(int row, int column)
    {
        return history().index(row, column).data().toString().toStdString();
    }

    static void press(QWidget const& dialog, char const* button)
    {
        QTest::mouseClick(&find<QPushButton>(dialog, button), Qt::LeftButton);
        idle();
    }
};

TEST_F(ProbeHistoryTest, ProbesAreListedAndTwoOfThemCompared)
{
    ASSERT_TRUE(probeAt(1.0, 1.0, 0.0));
    ASSERT_TRUE(probeAt(4.0, 1.0, 0.0));
    ASSERT_TRUE(probeAt(4.0, 3.0, 0.0));
    EXPECT_FALSE(probeAt(40.0, 3.0, 0.0));
    ASSERT_EQ(history().rowCount(), 3);
    EXPECT_EQ(text(1, ProbeHistory::XColumn), "4");
    auto& dialog = launch<ProbeHistoryDialog>();
    auto& list = find<QTableView>(dialog, "probeHistory_tableView");
    list.selectRow(0);
    list.selectionModel()->select(history().index(2, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_EQ(find<QLabel>(dialog, "probeHistory_comparison_label").text().toStdString(),
              "Distance: " + QString::asprintf("%.18g", std::hypot(3.0, 2.0, 0.0)).toStdString());
    auto& differences = table(dialog, "probeHistory_differences_tableWidget");
    ASSERT_EQ(differences.rowCount(), 2);
    differences.setFocus();
    QTest::keyClick(&differences, Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
                testing::MatchesRegex("Variable\tProbe [0-9]+\tProbe [0-9]+\tDifference\nX\t1\t4\t3\nY\t.*"));
    EXPECT_EQ(cell(differences, 0, 3), "3");
    EXPECT_EQ(cell(differences, 1, 3), "2");
    press(dialog, "probeHistory_remove_pushButton");
    ASSERT_EQ(history().rowCount(), 1);
    EXPECT_EQ(text(0, ProbeHistory::XColumn), "4");
}

TEST_F(ProbeHistoryTest, ProbesOfLinesAreListedByMapAndByPoint)
{
    open("lines");
    ASSERT_TRUE(probeLineAt('X', 1.5));
    ASSERT_TRUE(probeLineAt('X', 2.25));
    ASSERT_TRUE(probeLinePoint(4, 2));
    ASSERT_EQ(history().rowCount(), 3);
    EXPECT_EQ(text(0, ProbeHistory::ItemColumn), "X1");
    EXPECT_EQ(text(0, ProbeHistory::XColumn), "1.5");
    EXPECT_EQ(text(0, ProbeHistory::YColumn), "") << "every line has a value of its own";
    double y = 0.0;
    EXPECT_EQ(history().record(1).values.size(), std::size_t(VtxUtilLineMapGetCount()));
    ASSERT_TRUE(VtxUtilProbeLineGetPickedValues(nullptr, &y));
    EXPECT_THAT(text(2, ProbeHistory::ItemColumn), testing::MatchesRegex("Line map 2: .*, point 4"));
    EXPECT_EQ(history().record(2).position[1], y);

    auto& dialog = launch<ProbeHistoryDialog>();
    auto& list = find<QTableView>(dialog, "probeHistory_tableView");
    auto const comparison = [&](int first, int second) {
        list.selectRow(first);
        list.selectionModel()->select(history().index(second, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
        return find<QLabel>(dialog, "probeHistory_comparison_label").text().toStdString();
    };
    EXPECT_EQ(comparison(0, 1), "Distance: 0.75");
    EXPECT_EQ(table(dialog, "probeHistory_differences_tableWidget").rowCount(), VtxUtilLineMapGetCount());
    EXPECT_THAT(comparison(0, 2), testing::HasSubstr("no distance"));
    press(dialog, "probeHistory_probeAgain_pushButton");
    EXPECT_THAT(frontEnd.messages, testing::IsEmpty());
}

TEST_F(ProbeHistoryTest, ProbingAgainTakesTheDataOfNowAndLeavesTheLastProbe)
{
    ASSERT_TRUE(probeIndex(2, 2, 1));
    ASSERT_TRUE(probeIndex(5, 5, 1));
    changeVariable(0, 1, 10.0);
    auto& dialog = launch<ProbeHistoryDialog>();
    EXPECT_EQ(history().record(0).values.at(QStringLiteral("Y")), 1.0);
    press(dialog, "probeHistory_probeAgain_pushButton");
    EXPECT_EQ(history().record(0).values.at(QStringLiteral("Y")), 10.0);
    EXPECT_EQ(VtxUtilProbeFieldGetPoint(), 29);
    EXPECT_EQ(history().rowCount(), 2) << "probing again adds none";
    EXPECT_THAT(frontEnd.messages, testing::IsEmpty());

    kernel::Kernel::instance().reset();
    open("fe2d");
    press(dialog, "probeHistory_probeAgain_pushButton");
    EXPECT_THAT(frontEnd.messages, testing::ElementsAre(testing::HasSubstr("0 of 2 probes")));
    EXPECT_EQ(history().record(0).values.at(QStringLiteral("Y")), 10.0);
}

TEST_F(ProbeHistoryTest, AProbeWhoseZoneIsGoneKeepsItsValuesAndIsCounted)
{
    open("fe2d");
    ASSERT_TRUE(probeIndex(5, 1, 1, 1));
    ASSERT_TRUE(probeIndex(7, 1, 1, 2));
    std::vector<std::map<QString, double>> const before = {history().record(0).values, history().record(1).values};
    {
        sdk::AppLock const lock;
        toolbox::Set const first(std::set<int>{1});
        ASSERT_TRUE(VtxUtilDataSetDeleteZone(first.handle()));
    }
    idle();
    press(launch<ProbeHistoryDialog>(), "probeHistory_probeAgain_pushButton");
    EXPECT_THAT(frontEnd.messages, testing::ElementsAre(testing::HasSubstr("1 of 2 probes were made again")));
    EXPECT_EQ(history().record(0).values, before[0]);
    EXPECT_EQ(history().record(1).values, before[1]);
    EXPECT_EQ(text(0, ProbeHistory::ItemColumn), "Zone 1: Around the hole");
    EXPECT_EQ(text(1, ProbeHistory::ItemColumn), "Zone 1: Far end") << "it only has another number";
    EXPECT_EQ(VtxUtilProbeFieldGetPoint(), 7) << "the last probe is what it was";
}

TEST_F(ProbeHistoryTest, OldProbesAreDroppedButNotThePinnedOnes)
{
    ASSERT_TRUE(probeIndex(1, 1, 1));
    history().setData(history().index(0, ProbeHistory::NumberColumn), Qt::Checked, Qt::CheckStateRole);
    std::string const pinned = text(0, ProbeHistory::NumberColumn);
    for (int i = 0; i < ProbeHistory::largestCount + 5; ++i) {
        history().addLastProbe();
    }
    EXPECT_EQ(history().rowCount(), ProbeHistory::largestCount);
    EXPECT_EQ(text(0, ProbeHistory::NumberColumn), pinned);
}

TEST_F(ProbeHistoryTest, TheTableIsExportedAndAFileThatCannotBeWrittenIsTold)
{
    ASSERT_TRUE(probeAt(1.0, 2.0, 0.0));
    auto& dialog = launch<ProbeHistoryDialog>();
    QTemporaryDir const folder;
    QString const name = folder.filePath(QStringLiteral("probes.txt"));
    EXPECT_EQ(dialog.exportTo(name), QString());
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QString const text = QString::fromUtf8(file.readAll());
    EXPECT_THAT(text.toStdString(), testing::StartsWith("Probe\tItem\tPosition X\tPosition Y\tPosition Z\tX\tY"));
    EXPECT_EQ(text.count(u'\n'), 2);
    EXPECT_THAT(text.toStdString(), testing::HasSubstr("\t1\t2\t0\t"));
    EXPECT_THAT(dialog.exportTo(folder.filePath(QStringLiteral("missing/probes.txt"))).toStdString(),
                testing::HasSubstr("could not be written"));
}

TEST_F(ProbeHistoryTest, SeveralPositionsAreProbedAtOnce)
{
    auto& dialog = launch<ProbePositionsDialog>();
    auto& positions = find<QPlainTextEdit>(dialog, "probePositions_plainTextEdit");
    positions.setPlainText(QStringLiteral("# x y\n1 1\n2;1.5\n\n4e0, 3\n99,1\n"));
    click(dialog, QDialogButtonBox::Apply);
    ASSERT_EQ(history().rowCount(), 3);
    EXPECT_EQ(text(1, ProbeHistory::YColumn), "1.5");
    EXPECT_THAT(frontEnd.messages, testing::ElementsAre("1 of 4 positions are outside of the data."));

    struct
    {
        char const* text;
        char const* message;
    } const wrong[] = {{"1 1\n1 x\n", "Line 2, \"1 x\", is no position: write X and Y,"},
                       {"1 1 0", "is no position"},
                       {"1,5 2", "comma within a number"},
                       {"1,5;2", "comma within a number"}};
    for (auto const& [text, message] : wrong) {
        positions.setPlainText(QLatin1String(text));
        click(dialog, QDialogButtonBox::Apply);
        EXPECT_EQ(history().rowCount(), 3) << "a line that cannot be read keeps all from being probed";
        EXPECT_THAT(frontEnd.messages.back(), testing::HasSubstr(message));
    }
    open("flow3d");
    positions.setPlainText(QStringLiteral("1 1"));
    click(dialog, QDialogButtonBox::Apply);
    EXPECT_THAT(frontEnd.messages.back(), testing::HasSubstr("write X, Y and Z"));
    positions.setPlainText(QString());
    click(dialog, QDialogButtonBox::Apply);
    EXPECT_THAT(frontEnd.messages.back(), testing::HasSubstr("There is no position"));
}

TEST_F(ProbeHistoryTest, SeveralPositionsOfALinePlotAreOnTheAxisThatIsProbed)
{
    open("lines");
    auto& probeAt = launch<ProbeAtDialog>();
    click(probeAt, "atProbe_PositionAreaLinePlotXYAxisY1_TXRadioButton");
    click(probeAt, "atProbe_Several_PushButton");
    auto& dialog = ProbePositionsDialog::getInstance(parent);
    auto& axis = find<QComboBox>(dialog, "probePositions_axis_comboBox");
    EXPECT_EQ(axis.currentText(), QStringLiteral("Y1"));
    choose(dialog, "probePositions_axis_comboBox", "X1");
    auto& positions = find<QPlainTextEdit>(dialog, "probePositions_plainTextEdit");
    positions.setPlainText(QStringLiteral("1.5\n# far away\n1e9\n  2\n"));
    click(dialog, QDialogButtonBox::Apply);
    ASSERT_EQ(history().rowCount(), 2);
    EXPECT_EQ(text(0, ProbeHistory::ItemColumn), "X1");
    EXPECT_EQ(text(0, ProbeHistory::XColumn), "1.5");
    EXPECT_EQ(text(1, ProbeHistory::XColumn), "2");
    EXPECT_THAT(frontEnd.messages, testing::ElementsAre("1 of 3 positions are outside of the data."));
    ASSERT_TRUE(probeLineAt('X', 1.5));
    EXPECT_EQ(history().record(0).values, history().record(2).values) << "as a single probe finds them";

    for (auto const& [wrong, message] :
         {std::pair{"1\n2 3", "Line 2, \"2 3\", is no position on an axis"}, {"1,5", "comma within a number"}}) {
        positions.setPlainText(QLatin1String(wrong));
        click(dialog, QDialogButtonBox::Apply);
        EXPECT_THAT(frontEnd.messages.back(), testing::HasSubstr(message));
        EXPECT_EQ(history().rowCount(), 3);
    }
    open("polar");
    EXPECT_EQ(axis.count(), 2) << "theta and R";
    positions.setPlainText(QStringLiteral("10"));
    click(dialog, QDialogButtonBox::Apply);
    EXPECT_EQ(VtxUtilProbeLineGetAxis(), 'T');
    EXPECT_EQ(VtxUtilProbeLineGetPosition(), 10.0);
    open("fe2d");
    EXPECT_TRUE(axis.isHidden());
}

} // namespace
} // namespace vantrix::test
