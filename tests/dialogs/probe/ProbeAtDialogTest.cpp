#include "ProbeDialogsFixture.h"

#include "dialogs/probe/ProbeAtDialog.h"
#include "toolbox/Set.h"
#include "ui/QLgIndexSpinBox.h"
#include "ui/QScientificSpinBox.h"

#include <QLabel>

namespace vantrix::test {
namespace {

using sdk::ui::common::QLgIndexSpinBox;
using sdk::ui::common::QScientificSpinBox;
using sdk::ui::dialogs::ProbeAtDialog;

class ProbeAtDialogTest : public ProbeDialogsTest
{
protected:
    static void type(QWidget const& dialog, char const* spinBox, char const* text)
    {
        enter(find<QLineEdit>(find<QAbstractSpinBox>(dialog, spinBox), "qt_spinbox_lineedit"), text);
    }

    static void step(QWidget const& dialog, char const* spinBox, Qt::Key key)
    {
        auto& box = find<QAbstractSpinBox>(dialog, spinBox);
        box.setFocus();
        QTest::keyClick(&box, key);
        idle();
    }

    static void showIndex(QWidget const& dialog)
    {
        find<QTabWidget>(dialog, "pageForm").setCurrentIndex(1);
        idle();
    }

    static void probe(QDialog const& dialog) { click(dialog, QDialogButtonBox::Apply); }

    static void createBox()
    {
        sdk::AppLock const lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(6, 5, 1, 0, 0, 0, 5, 4, 0, FieldDataType_Double));
        ASSERT_TRUE(VtxUtilCreateRectangularZone(10, 1, 1, 0, 0, 0, 9, 0, 0, FieldDataType_Double));
    }
};

TEST_F(ProbeAtDialogTest, APositionInAFieldPlotIsProbed)
{
    createBox();
    auto& dialog = launch<ProbeAtDialog>();
    EXPECT_EQ(pageOf(dialog, "atProbe_PositionArea_Stack"), "positionField_page");
    EXPECT_FALSE(isEnabled(dialog, "atProbe_PositionAreaFieldZ_1Text")) << "a 2D plot has no Z";
    EXPECT_FALSE(isEnabled(dialog, "atProbe_PositionAreaFieldVolume_ToggleButton"));
    type(dialog, "atProbe_PositionAreaFieldX_1Text", "2.5");
    type(dialog, "atProbe_PositionAreaFieldY_1Text", "1.25");
    probe(dialog);
    EXPECT_THAT(frontEnd.messages, testing::IsEmpty());
    EXPECT_EQ(VtxUtilProbeFieldGetValue(1), 2.5);
    EXPECT_EQ(VtxUtilProbeFieldGetValue(2), 1.25);
    EXPECT_TRUE(ProbeDialog::getInstance(parent).isVisible()) << "the result is shown though nobody had asked for it";

    type(dialog, "atProbe_PositionAreaFieldX_1Text", "77");
    probe(dialog);
    EXPECT_THAT(frontEnd.messages, testing::ElementsAre("Probe position is outside of the data"));
}

TEST_F(ProbeAtDialogTest, AnIndexIsProbedAndStepsStayWithinTheZone)
{
    createBox();
    auto& dialog = launch<ProbeAtDialog>();
    showIndex(dialog);
    choose(dialog, "atProbe_IndexDataGroup_CmbBox", "2: Rectangular zone");
    auto& i = find<QLgIndexSpinBox>(dialog, "atProbe_IndexI_1Text");
    type(dialog, "atProbe_IndexI_1Text", "9");
    step(dialog, "atProbe_IndexI_1Text", Qt::Key_Up);
    step(dialog, "atProbe_IndexI_1Text", Qt::Key_Up);
    EXPECT_EQ(i.value(), 10);
    step(dialog, "atProbe_IndexJ_1Text", Qt::Key_Up);
    EXPECT_EQ(find<QLgIndexSpinBox>(dialog, "atProbe_IndexJ_1Text").value(), 1);
    probe(dialog);
    EXPECT_EQ(VtxUtilProbeFieldGetPoint(), 10);

    choose(dialog, "atProbe_IndexDataGroup_CmbBox", "1: Rectangular zone");
    EXPECT_EQ(i.value(), 6) << "the other zone ends there";
    type(dialog, "atProbe_IndexI_1Text", "Mx-1");
    type(dialog, "atProbe_IndexJ_1Text", "Mx");
    probe(dialog);
    EXPECT_EQ(VtxUtilProbeFieldGetZone(), 1);
    EXPECT_EQ(VtxUtilProbeFieldGetPoint(), 5 + 6 * 4);
    EXPECT_THAT(frontEnd.messages, testing::IsEmpty());

    type(dialog, "atProbe_IndexI_1Text", "7");
    probe(dialog);
    EXPECT_THAT(frontEnd.messages, testing::ElementsAre(testing::HasSubstr("I is 7; it must be from 1 to 6")));
    EXPECT_EQ(VtxUtilProbeFieldGetPoint(), 5 + 6 * 4) << "the last result stays";
}

TEST_F(ProbeAtDialogTest, LinePlotsAreProbedAlongTheChosenAxis)
{
    open("lines");
    auto& dialog = launch<ProbeAtDialog>();
    EXPECT_EQ(pageOf(dialog, "atProbe_PositionArea_Stack"), "positionLine_page");
    EXPECT_EQ(pageOf(dialog, "atProbe_PositionAreaLinePlotAxis_Stack"), "lineAxisXY_page");
    EXPECT_TRUE(isChecked(dialog, "atProbe_PositionAreaLinePlotXYAxisX1_TXRadioButton"));
    click(dialog, "atProbe_PositionAreaLinePlotXYAxisX2_TXRadioButton");
    EXPECT_EQ(find<QLabel>(dialog, "atProbe_PositionAreaLinePlotDoAxis_Label").text(), QStringLiteral("&X2:"));
    probe(dialog);
    EXPECT_THAT(frontEnd.messages, testing::ElementsAre(testing::HasSubstr("outside of the data")));
    click(dialog, "atProbe_PositionAreaLinePlotXYAxisX1_TXRadioButton");
    type(dialog, "atProbe_PositionAreaLinePlotDoAxis_1Text", "1.5");
    probe(dialog);
    EXPECT_EQ(VtxUtilProbeLineGetPosition(), 1.5);
    EXPECT_EQ(VtxUtilProbeLineGetAxis(), 'X');

    showIndex(dialog);
    type(dialog, "atProbe_IndexI_1Text", "4");
    probe(dialog);
    EXPECT_EQ(VtxUtilProbeLineGetPoint(), 4);
    EXPECT_EQ(VtxUtilProbeLineGetPickedMap(), 1);
}

TEST_F(ProbeAtDialogTest, TheLinePositionStepsByATwentiethOfTheAxis)
{
    open("lines");
    {
        sdk::AppLock const lock;
        EXPECT_EQ(toolbox::StyleValue("XYLineAxis", "YDetail", "RangeMax").setValue(50.0, 3), SetValueReturnCode_Ok);
        EXPECT_EQ(toolbox::StyleValue("XYLineAxis", "YDetail", "RangeMin").setValue(10.0, 3), SetValueReturnCode_Ok);
    }
    auto& dialog = launch<ProbeAtDialog>();
    click(dialog, "atProbe_PositionAreaLinePlotXYAxisY3_TXRadioButton");
    type(dialog, "atProbe_PositionAreaLinePlotDoAxis_1Text", "1");
    step(dialog, "atProbe_PositionAreaLinePlotDoAxis_1Text", Qt::Key_Up);
    EXPECT_EQ(find<QScientificSpinBox>(dialog, "atProbe_PositionAreaLinePlotDoAxis_1Text").value(), 3.0);
}

TEST_F(ProbeAtDialogTest, TheFormFollowsThePlotAndZonesThatGo)
{
    createBox();
    auto& dialog = launch<ProbeAtDialog>();
    showIndex(dialog);
    choose(dialog, "atProbe_IndexDataGroup_CmbBox", "2: Rectangular zone");
    {
        sdk::AppLock const lock;
        toolbox::Set const second(std::set<int>{2});
        ASSERT_TRUE(VtxUtilDataSetDeleteZone(second.handle()));
    }
    idle();
    EXPECT_EQ(find<QComboBox>(dialog, "atProbe_IndexDataGroup_CmbBox").count(), 1);
    probe(dialog);
    EXPECT_EQ(VtxUtilProbeFieldGetZone(), 1);
    setStyle({"PlotType"}, long{PlotType_PolarLine});
    EXPECT_EQ(pageOf(dialog, "atProbe_PositionAreaLinePlotAxis_Stack"), "lineAxisPolar_page");
    EXPECT_TRUE(isChecked(dialog, "atProbe_PositionAreaLinePlotPolarAxisTheta_TXRadioButton"));
    click(dialog, "atProbe_PositionAreaLinePlotPolarAxisR_TXRadioButton");
    EXPECT_EQ(find<QLabel>(dialog, "atProbe_PositionAreaLinePlotDoAxis_Label").text(), QStringLiteral("&R:"));
    setStyle({"PlotType"}, long{PlotType_Sketch});
    EXPECT_FALSE(isEnabled(dialog, "pageForm"));
}

TEST_F(ProbeAtDialogTest, ChoicesAreThereAgainWhenTheDialogIsOpenedAgain)
{
    createBox();
    auto* dialog = &launch<ProbeAtDialog>();
    type(*dialog, "atProbe_PositionAreaFieldX_1Text", "4.75");
    dialog->close();
    delete dialog;
    dialog = &launch<ProbeAtDialog>();
    EXPECT_EQ(find<QScientificSpinBox>(*dialog, "atProbe_PositionAreaFieldX_1Text").value(), 4.75);
}

} // namespace
} // namespace vantrix::test
