#include "ProbeDialogsFixture.h"

#include "dialogs/probe/ProbeAtDialog.h"

namespace vantrix::test {
namespace {

TEST_F(ProbeDialogsTest, LaunchingLetsTheMouseProbeAndShowsThatNothingWasProbedYet)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Probe"));
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Probe);
    EXPECT_TRUE(VtxUtilProbeIsCallbackInstalled());
    EXPECT_EQ(pageOf(dialog, "stackedWidget"), "noProbeData_page");
    EXPECT_EQ(find<QPushButton>(dialog, "probeAt_pushButton").text(), QStringLiteral("&Probe At..."));
}

TEST_F(ProbeDialogsTest, APlotWithoutDataIsNotProbed)
{
    auto& dialog = ProbeDialog::getInstance(parent);
    dialog.launch();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_THAT(frontEnd.messages, testing::ElementsAre(testing::HasSubstr("nothing to probe")));
    EXPECT_FALSE(ProbeDialog::relevance()->isRelevant());
}

TEST_F(ProbeDialogsTest, OnlyAProbeThatFindsSomethingOpensTheClosedDialog)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    click(dialog, QDialogButtonBox::Close);
    ASSERT_FALSE(dialog.isVisible());
    EXPECT_FALSE(probeAt(1e6, 1e6, 0.0));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(probeIndex(1, 1, 1));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(pageOf(dialog, "stackedWidget"), "cartesianProbe_page");

    click(dialog, QDialogButtonBox::Close);
    changeVariable(0, 2, 2.0);
    EXPECT_FALSE(dialog.isVisible()) << "probing again is not for the user's eyes alone";
}

TEST_F(ProbeDialogsTest, TheDialogOpensAgainWhereAndAsLargeAsItWas)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    dialog.setGeometry(70, 80, 512, 580);
    idle();
    QRect const left = dialog.geometry();
    click(dialog, QDialogButtonBox::Close);
    EXPECT_TRUE(probeIndex(1, 1, 1));
    EXPECT_EQ(dialog.geometry(), left);
}

TEST_F(ProbeDialogsTest, ProbeAtIsOpenedFromTheButtonAndItsResultShown)
{
    open("fe2d");
    auto& dialog = launch<ProbeDialog>();
    QTest::mouseClick(&find<QPushButton>(dialog, "probeAt_pushButton"), Qt::LeftButton);
    idle();
    EXPECT_TRUE(sdk::ui::dialogs::ProbeAtDialog::getInstance(parent).isVisible());
}

TEST_F(ProbeDialogsTest, AReceiverThatIsGoneIsNotCalled)
{
    open("fe2d");
    delete &launch<ProbeDialog>();
    EXPECT_FALSE(VtxUtilProbeIsCallbackInstalled());
    EXPECT_TRUE(probeIndex(1, 1, 1));
}

} // namespace
} // namespace vantrix::test
