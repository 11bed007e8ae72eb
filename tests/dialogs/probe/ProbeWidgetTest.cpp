#include "ProbeDialogsFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QTimer>

#include <vtkDataArray.h>

#include <array>

namespace vantrix::test {
namespace {

double stored(long zone, long variable, long position)
{
    double value = 0.0;
    EXPECT_TRUE(VtxUtilDataValueGetByZoneVar(zone, variable, position, &value));
    return value;
}

std::string exact(double value)
{
    return QString::asprintf("%.18g", value).toStdString();
}

void copyByMenu(QTableWidget& table)
{
    Q_EMIT table.customContextMenuRequested(QPoint(5, 5));
    idle();
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().front()->text(), QStringLiteral("Copy"));
    menu->actions().front()->trigger();
    menu->close();
    idle();
}

TEST_F(ProbeDialogsTest, TheFirstWidgetStartsOnTheTabOfTheSettingAndLaterOnesOnTheTabLeft)
{
    open("fe2d");
    setStyle({"Interface", "InitialFieldProbeDialogPage"}, long{FieldProbeDialogPage_ZoneCellInfo});
    auto* dialog = &launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(3, 1, 1));
    auto const tab = [&] { return find<QTabWidget>(*dialog, "cartesianProbe_tabWidget").currentIndex(); };
    EXPECT_EQ(tab(), FieldProbeDialogPage_ZoneCellInfo);
    showTab(*dialog, FieldProbeDialogPage_NodalValues);
    delete dialog;
    dialog = &launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(3, 1, 1));
    EXPECT_EQ(tab(), FieldProbeDialogPage_NodalValues);
    EXPECT_EQ(table(*dialog, "varValues_tableWidget").rowCount(), VtxUtilDataSetGetNumVars());
}

TEST_F(ProbeDialogsTest, ValuesOfAllVariablesAreShownWithAllDigits)
{
    open("polyhedra");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(40, 1, 1));
    EXPECT_EQ(find<QLabel>(dialog, "probedItemName_label").text(), QStringLiteral("Zone 1: Foam"));
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    auto& values = table(dialog, "varValues_tableWidget");
    ASSERT_EQ(values.rowCount(), 5);
    for (int variable = 1; variable <= 4; ++variable) {
        EXPECT_EQ(cell(values, variable - 1, 1), exact(stored(1, variable, 40)));
    }
    EXPECT_THAT(cell(values, 4, 1), testing::EndsWith("*")) << "cell-centred";
    EXPECT_EQ(cell(values, 0, 0), "X");
}

TEST_F(ProbeDialogsTest, ValuesAtTheCentreOfTheCell)
{
    open("polyhedra");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeAt(1.5, 1.5, 1.5, true));
    showTab(dialog, FieldProbeDialogPage_CellCenteredValues);
    auto& values = table(dialog, "cellCenterValues_tableWidget");
    long const probed = VtxUtilProbeFieldGetCell();
    EXPECT_EQ(cell(values, 4, 1), exact(stored(1, 5, probed))) << "as stored";
    EXPECT_EQ(cell(values, 0, 1), exact(VtxUtilProbeFieldGetCellCenterValue(1)) + "*") << "the mean of the corners";
}

TEST_F(ProbeDialogsTest, ZoneAndCellOfElements)
{
    open("mixed");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeAt(-2.95, -2.95, -2.3 + 0.1));
    showTab(dialog, FieldProbeDialogPage_ZoneCellInfo);
    ASSERT_EQ(VtxUtilProbeFieldGetZone(), 3);
    auto& zone = table(dialog, "zoneInfo_tableWidget");
    EXPECT_EQ(valueOf(zone, "Zone Type"), "FE-Quad");
    EXPECT_EQ(valueOf(zone, "Total Points"), "625");
    EXPECT_EQ(valueOf(zone, "Total Elements"), "576");
    auto& info = table(dialog, "cellInfo_tableWidget");
    EXPECT_EQ(valueOf(info, "Element Num"), "1");
    EXPECT_EQ(valueOf(info, "Node 3"), "27");

    showTab(dialog, FieldProbeDialogPage_FaceNeighbors);
    EXPECT_EQ(find<QLabel>(dialog, "faceNeighbor_cellNumber_label").text(), QStringLiteral("Cell: 1"));
    auto& faces = table(dialog, "faceNeighbor_tableWidget");
    ASSERT_EQ(faces.rowCount(), 4);
    EXPECT_EQ(cell(faces, 0, 1), "none");
    EXPECT_EQ(cell(faces, 1, 1), "self");
    EXPECT_EQ(cell(faces, 1, 2), "2");
    EXPECT_EQ(cell(faces, 2, 2), "25");
}

TEST_F(ProbeDialogsTest, CellsOfAnOrderedZoneByPlaneAndIndices)
{
    {
        sdk::AppLock const lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(6, 5, 4, 0, 0, 0, 5, 4, 3, FieldDataType_Double));
        ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_Cartesian3D));
    }
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeAt(5.0, 1.5, 2.25));
    showTab(dialog, FieldProbeDialogPage_ZoneCellInfo);
    EXPECT_EQ(valueOf(table(dialog, "zoneInfo_tableWidget"), "J-Max"), "5");
    auto& info = table(dialog, "cellInfo_tableWidget");
    EXPECT_EQ(valueOf(info, "Face Plane"), "I-Plane\nI = 6");
    EXPECT_EQ(valueOf(info, "Face Indices"), "J = 2\nK = 3");
    ASSERT_TRUE(probeAt(2.5, 1.5, 2.25, true));
    EXPECT_EQ(valueOf(info, "Cell"), "I = 3\nJ = 2\nK = 3");
    ASSERT_TRUE(probeIndex(6, 1, 4));
    EXPECT_EQ(valueOf(info, "Point"), "I = 6\nJ = 1\nK = 4");
    showTab(dialog, FieldProbeDialogPage_FaceNeighbors);
    EXPECT_EQ(find<QLabel>(dialog, "faceNeighbor_cellNumber_label").text(), QStringLiteral("Cell: N/A"));
}

TEST_F(ProbeDialogsTest, FacesOfAPolyhedronTellTheirPoints)
{
    open("polyhedra");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeAt(1.5, 1.5, 1.5, true));
    showTab(dialog, FieldProbeDialogPage_ZoneCellInfo);
    EXPECT_EQ(valueOf(table(dialog, "zoneInfo_tableWidget"), "Zone Type"), "FE-Polyhedron");
    EXPECT_GT(std::stol(valueOf(table(dialog, "zoneInfo_tableWidget"), "Total Faces")), 14);
    auto& info = table(dialog, "cellInfo_tableWidget");
    EXPECT_EQ(valueOf(info, "Num Faces"), "14");
    auto const found = info.findItems(QStringLiteral("Face 14"), Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    EXPECT_THAT(found.front()->toolTip().toStdString(),
                testing::MatchesRegex("Face Num: 14\nNum Nodes: [46]\nNodes: .*"));
    EXPECT_EQ(valueOf(info, "Current Face"), "<no row Current Face>") << "the probe was inside of the cell";

    ASSERT_TRUE(probeAt(0.0, 0.0, 0.0, true));
    long face = 1;
    for (long cell = 0; VtxUtilProbeFieldGetFaceNeighbor(face, &cell, nullptr) && cell != 0;) {
        ++face;
    }
    std::array<double, 3> middle{};
    long const corners = VtxUtilProbeFieldGetFaceNodeCount(face);
    ASSERT_GT(corners, 3) << "a cell at the corner of the foam has a border face";
    for (long corner = 1; corner <= corners; ++corner) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            middle[axis] += stored(1, static_cast<long>(axis) + 1, VtxUtilProbeFieldGetFaceNode(face, corner)) /
                            static_cast<double>(corners);
        }
    }
    ASSERT_TRUE(probeAt(middle[0], middle[1], middle[2]));
    EXPECT_EQ(valueOf(info, "Current Face"), std::to_string(face));
}

TEST_F(ProbeDialogsTest, VariablesThatAreNotLoadedAreLoadedByTheButton)
{
    open("fe2d");
    std::string const value = exact(stored(1, 3, 5));
    unload(0, 2);
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(5, 1, 1));
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    auto& values = table(dialog, "varValues_tableWidget");
    auto& button = find<QPushButton>(dialog, "varValues_LoadVariables_pushButton");
    EXPECT_EQ(cell(values, 2, 1), "Not Loaded");
    ASSERT_TRUE(button.isEnabled());
    QTimer::singleShot(0, &dialog, [] {
        auto* const load = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(load, nullptr);
        EXPECT_EQ(find<QListWidget>(*load, "loadVariables_MList").count(), 1);
        find<QDialogButtonBox>(*load, "buttonBox").button(QDialogButtonBox::Ok)->click();
    });
    QTest::mouseClick(&button, Qt::LeftButton);
    idle();
    EXPECT_EQ(cell(values, 2, 1), value);
    EXPECT_FALSE(button.isEnabled());
}

TEST_F(ProbeDialogsTest, TheProbeIsMadeAgainWhenDataChangeButOnlyWhileTheMouseProbes)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(5, 1, 1));
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    auto& values = table(dialog, "varValues_tableWidget");
    changeVariable(0, 2, 2.0);
    EXPECT_EQ(cell(values, 2, 1), exact(stored(1, 3, 5)));
    std::string const shown = cell(values, 2, 1);
    {
        sdk::AppLock const lock;
        VtxUtilMouseSetMode(MouseMode_Selector);
    }
    changeVariable(0, 2, 2.0);
    EXPECT_EQ(cell(values, 2, 1), shown);
}

TEST_F(ProbeDialogsTest, AFailedProbeLeavesTheTablesAndOtherDataEmptyThePage)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(5, 1, 1));
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    std::string const shown = cell(table(dialog, "varValues_tableWidget"), 2, 1);
    EXPECT_FALSE(probeAt(1e6, 0.0, 0.0));
    EXPECT_EQ(cell(table(dialog, "varValues_tableWidget"), 2, 1), shown);
    setStyle({"PlotType"}, long{PlotType_Sketch});
    EXPECT_EQ(pageOf(dialog, "stackedWidget"), "noProbeData_page");
    setStyle({"PlotType"}, long{PlotType_Cartesian2D});
    EXPECT_EQ(pageOf(dialog, "stackedWidget"), "cartesianProbe_page");
    open("polyhedra");
    EXPECT_EQ(pageOf(dialog, "stackedWidget"), "noProbeData_page");
}

TEST_F(ProbeDialogsTest, AfterAFailedProbeAllTabsAreOfTheLastOneThatFoundSomething)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(5, 1, 1, 1));
    showTab(dialog, FieldProbeDialogPage_ZoneCellInfo);
    auto& zone = table(dialog, "zoneInfo_tableWidget");
    ASSERT_EQ(valueOf(zone, "Zone Type"), "FE-Quad");
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    ASSERT_TRUE(probeIndex(7, 1, 1, 2));
    EXPECT_FALSE(probeAt(1e6, 0.0, 0.0));
    EXPECT_EQ(find<QLabel>(dialog, "probedItemName_label").text(), QStringLiteral("Zone 2: Far end"));
    showTab(dialog, FieldProbeDialogPage_ZoneCellInfo);
    EXPECT_EQ(valueOf(zone, "Zone Type"), "FE-Triangle");
    EXPECT_EQ(valueOf(table(dialog, "cellInfo_tableWidget"), "Node Num"), "7");
    EXPECT_EQ(VtxUtilProbeFieldGetZone(), 2) << "and so is what the host keeps";
}

TEST_F(ProbeDialogsTest, TabsNeverMixTheDataOfTwoFrames)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    long const first = VtxUtilFrameGetUniqueID();
    ASSERT_TRUE(probeIndex(7, 1, 1, 2));
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    auto& values = table(dialog, "varValues_tableWidget");
    auto& zone = table(dialog, "zoneInfo_tableWidget");
    int const rows = values.rowCount();
    std::string const shown = cell(values, 2, 0) + cell(values, 2, 1);

    auto const activate = [](long frame) {
        {
            sdk::AppLock const lock;
            ASSERT_TRUE(kernel::Kernel::instance().document().setActiveFrame(frame));
        }
        idle();
    };
    {
        sdk::AppLock const lock;
        ASSERT_NE(kernel::Kernel::instance().document().addFrame(), nullptr);
    }
    open("polyhedra");
    long const second = VtxUtilFrameGetUniqueID();
    ASSERT_NE(first, second);
    setStyle({"PlotType"}, long{PlotType_Cartesian2D});
    activate(first);
    {
        sdk::AppLock const lock;
        ASSERT_TRUE(VtxUtilMouseSetMode(MouseMode_Probe));
    }
    ASSERT_TRUE(probeIndex(7, 1, 1, 2));
    EXPECT_EQ(values.rowCount(), rows);
    activate(second);
    EXPECT_FALSE(probeAt(1e6, 1e6, 0.0));
    EXPECT_EQ(find<QLabel>(dialog, "probedItemName_label").text(), QStringLiteral("Zone 2: Far end"));
    EXPECT_EQ(values.rowCount(), rows);
    EXPECT_EQ(cell(values, 2, 0) + cell(values, 2, 1), shown);
    showTab(dialog, FieldProbeDialogPage_ZoneCellInfo);
    EXPECT_EQ(zone.rowCount(), 0) << "the zone of that number in the other data";
    activate(first);
    ASSERT_TRUE(probeIndex(7, 1, 1, 2));
    EXPECT_EQ(valueOf(zone, "Zone Type"), "FE-Triangle");
}

TEST_F(ProbeDialogsTest, ANameColumnThatTheUserWidenedStaysSo)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(5, 1, 1));
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    auto& values = table(dialog, "varValues_tableWidget");
    ASSERT_TRUE(probeIndex(6, 1, 1));
    values.horizontalHeader()->resizeSection(0, 211);
    ASSERT_TRUE(probeIndex(7, 1, 1));
    EXPECT_EQ(values.columnWidth(0), 211);
    delete &dialog;
    auto& again = launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(7, 1, 1));
    showTab(again, FieldProbeDialogPage_NodalValues);
    EXPECT_EQ(table(again, "varValues_tableWidget").columnWidth(0), 211);
}

TEST_F(ProbeDialogsTest, TablesAreCopiedWithTheirHeader)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeIndex(5, 1, 1));
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    copyByMenu(table(dialog, "varValues_tableWidget"));
    QStringList const lines = QGuiApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), VtxUtilDataSetGetNumVars() + 1);
    EXPECT_EQ(lines[0], QStringLiteral("Variable\tValue"));
    EXPECT_EQ(lines[1].toStdString(), "X\t" + exact(stored(1, 1, 5)));
    showTab(dialog, FieldProbeDialogPage_FaceNeighbors);
    copyByMenu(table(dialog, "faceNeighbor_tableWidget"));
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
                testing::StartsWith("Cell Face\tNeighbor Zone\tNeighbor Cell\tMapping\n"));
}

TEST_F(ProbeDialogsTest, AVariableOnAnAxisWithDatesShowsADate)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    setStyle({"TwoDAxis", "XDetail", "TickLabel", "NumFormat", "Formatting"}, long{NumberFormat_TimeDate});
    setStyle({"TwoDAxis", "XDetail", "TickLabel", "NumFormat", "TimeDateFormat"}, std::string("yyyy-mm-dd"));
    ASSERT_TRUE(probeIndex(5, 1, 1));
    showTab(dialog, FieldProbeDialogPage_NodalValues);
    auto& values = table(dialog, "varValues_tableWidget");
    EXPECT_THAT(cell(values, 0, 1), testing::MatchesRegex("1[89]..-..-.."));
    EXPECT_EQ(cell(values, 1, 1), exact(stored(1, 2, 5))) << "Y has plain numbers";
}

TEST_F(ProbeDialogsTest, LineMapsAreShownInterpolatedOrByPoint)
{
    open("lines");
    auto& dialog = launch<ProbeDialog>();
    double const middle = (stored(1, 1, 5) + stored(1, 1, 6)) / 2;
    ASSERT_TRUE(probeLineAt('X', middle));
    EXPECT_EQ(pageOf(dialog, "stackedWidget"), "lineProbe_page");
    EXPECT_EQ(pageOf(dialog, "lineProbe_stackedWidget"), "interpolatedValues_page");
    EXPECT_EQ(find<QLabel>(dialog, "independentAxis_label").text(), QStringLiteral("X1:"));
    EXPECT_EQ(find<QLabel>(dialog, "independentValue_label").text().toStdString(), exact(middle));
    auto& lines = table(dialog, "interpolatedValues_tableWidget");
    EXPECT_EQ(lines.rowCount(), VtxUtilLineMapGetCount());
    EXPECT_EQ(lines.horizontalHeaderItem(1)->text(), QStringLiteral("Y-Value"));
    EXPECT_EQ(cell(lines, 0, 1), exact((stored(1, 2, 5) + stored(1, 2, 6)) / 2));
    ASSERT_TRUE(probeLinePoint(7, 1));
    EXPECT_EQ(pageOf(dialog, "lineProbe_stackedWidget"), "specificValues_page");
    auto& point = table(dialog, "specificValues_tableWidget");
    EXPECT_EQ(valueOf(point, "Point"), "7");
    EXPECT_EQ(valueOf(point, "X1:"), exact(stored(1, 1, 7)));
    EXPECT_EQ(valueOf(point, "Y1:"), exact(stored(1, 2, 7)));
}

TEST_F(ProbeDialogsTest, APolarPlotTellsThetaAndR)
{
    open("lines");
    setStyle({"PlotType"}, long{PlotType_PolarLine});
    auto& dialog = launch<ProbeDialog>();
    ASSERT_TRUE(probeLineAt('T', stored(1, 1, 5)));
    EXPECT_EQ(find<QLabel>(dialog, "independentAxis_label").text(), QStringLiteral("Theta:"));
    auto& lines = table(dialog, "interpolatedValues_tableWidget");
    EXPECT_EQ(lines.horizontalHeaderItem(1)->text(), QStringLiteral("R-Value"));
    EXPECT_EQ(cell(lines, 0, 1), exact(stored(1, 2, 5)));
    ASSERT_TRUE(probeLineAt('R', stored(1, 2, 5)));
    EXPECT_EQ(lines.horizontalHeaderItem(1)->text(), QStringLiteral("Theta-Value"));
    ASSERT_TRUE(probeLinePoint(7, 1));
    auto& point = table(dialog, "specificValues_tableWidget");
    EXPECT_EQ(valueOf(point, "Theta-Value"), exact(stored(1, 1, 7)));
    EXPECT_EQ(valueOf(point, "R-Value"), exact(stored(1, 2, 7)));
}

} // namespace
} // namespace vantrix::test
