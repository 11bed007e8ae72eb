#include "dialogs/zone/CreateRectangularZoneDialog.h"

#include "CreateZoneDialogTest.h"

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The dialog over a 3D plot of data from (0, 1, -1) to (6, 8, 5).
class CreateRectangularZoneDialogTest : public CreateZoneDialogTest
{
protected:
    CreateRectangularZoneDialogTest()
        : CreateZoneDialogTest(1.0)
    {}

    ~CreateRectangularZoneDialogTest() override
    {
        // Dimensions live as long as the process: the next test begins with the first ones.
        auto const& dialog = launch();
        for (char const* const item : {"iDimension", "jDimension", "kDimension"}) {
            enter(field(dialog, item), "10");
        }
    }

    CreateRectangularZoneDialog& launch() { return launchDialog<CreateRectangularZoneDialog>(); }

    static QLineEdit& field(QDialog const& dialog, char const* item)
    {
        return find<QLineEdit>(dialog, (std::string(item) + "_lineEdit").c_str());
    }

    static std::vector<std::string> texts(QDialog const& dialog)
    {
        std::vector<std::string> result;
        for (char const* const item :
             {"iDimension", "jDimension", "kDimension", "xMin", "xMax", "yMin", "yMax", "zMin", "zMax"}) {
            result.push_back(textOf(field(dialog, item)));
        }
        return result;
    }

    static void pressCreate(QDialog const& dialog)
    {
        QTest::mouseClick(&button(dialog, QStringLiteral("C&reate")), Qt::LeftButton);
    }

    static std::vector<bool> threeDElementsEnabled(QDialog const& dialog)
    {
        return enabled(dialog, {"kDimension_label", "kDimension_lineEdit", "zMin_label", "zMin_lineEdit", "zMax_label",
                                "zMax_lineEdit"});
    }
};

} // namespace

TEST_F(CreateRectangularZoneDialogTest, ShowsDefaultDimensionsAndTheExtentsOfTheData)
{
    EXPECT_THAT(texts(launch()), ElementsAre("10", "10", "10", "0", "6", "1", "8", "-1", "5"));
}

TEST_F(CreateRectangularZoneDialogTest, CreateCallsTheHostUnderOneRecordedLockAndAnnouncesTheZone)
{
    auto const& dialog = launch();
    char const* const values[][2] = {{"iDimension", "2"}, {"jDimension", "3"}, {"kDimension", "4"}, {"xMin", "-1"},
                                     {"xMax", "-2"},      {"yMin", "2.5"},     {"yMax", "3e2"},     {"zMin", "7"}};
    for (auto const& [item, text] : values) {
        enter(field(dialog, item), text);
    }
    typeInto(field(dialog, "zMax"), "9");
    pressCreate(dialog);
    EXPECT_THAT(host.rectangularZones,
                ElementsAre(RecordingHost::RectangularZone{2, 3, 4, -1, 2.5, 7, -2, 300, 9, FieldDataType_Float}));
    EXPECT_TRUE(host.createdUnderLock);
    EXPECT_TRUE(host.lastLockRecorded);
    EXPECT_THAT(host.statusMessages, ElementsAre("Rectangular zone created."));
}

TEST_F(CreateRectangularZoneDialogTest, AFailureIsToldAndTheFirstZoneOfADataSetIsNotAnnounced)
{
    auto const& dialog = launch();
    host.createSucceeds = false;
    pressCreate(dialog);
    EXPECT_THAT(host.errors, ElementsAre("Error creating rectangular zone"));

    host.createSucceeds = true;
    host.plotType = PlotType_Sketch;
    host.dataSetIsAvailable = false;
    host.notify(StateChange_DataSetReset);
    idle();
    pressCreate(dialog);
    EXPECT_EQ(host.rectangularZones.size(), 2u);
    EXPECT_THAT(host.statusMessages, IsEmpty());
}

TEST_F(CreateRectangularZoneDialogTest, WithoutAThirdAxisKIsOneAndItsFieldsAreOff)
{
    auto const& dialog = launch();
    EXPECT_EQ(threeDElementsEnabled(dialog), allSix);
    host.plotType = PlotType_Cartesian2D;
    host.notify(StateChange_ZoneName);
    idle();
    EXPECT_EQ(threeDElementsEnabled(dialog), allSix) << "a name has nothing to do with it";

    host.define({"PlotType"}, 1L);
    host.define({"ActiveFieldMaps"}, 1L);
    host.change({"PlotType"}, 2L);
    idle();
    EXPECT_EQ(threeDElementsEnabled(dialog), none);
    EXPECT_EQ(textOf(field(dialog, "kDimension")), "1");

    host.plotType = PlotType_Cartesian3D;
    host.change({"ActiveFieldMaps"}, 0L);
    idle();
    EXPECT_EQ(threeDElementsEnabled(dialog), allSix);
}

TEST_F(CreateRectangularZoneDialogTest, DimensionsAndSizeOutliveTheDialog)
{
    QSize size;
    {
        QWidget firstParent;
        auto& dialog = CreateRectangularZoneDialog::getInstance(firstParent);
        dialog.launch();
        enter(field(dialog, "jDimension"), "77");
        dialog.resize(dialog.width() + 120, dialog.height());
        size = dialog.size();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    }
    auto const& again = launch();
    EXPECT_THAT(texts(again), ElementsAre("10", "77", "10", "0", "6", "1", "8", "-1", "5"));
    EXPECT_EQ(again.size(), size);
}

TEST_F(CreateRectangularZoneDialogTest, DimensionsBeginAtOneAndCoordinatesTakePlainNumbersOnly)
{
    auto const& dialog = launch();
    char const* const cases[][3] = {
        {"iDimension", "0", "10"}, {"iDimension", "1", "1"}, {"xMin", "1e151", "0"}, {"xMax", "3,14", "6"}};
    for (auto const& [item, text, shown] : cases) {
        typeInto(field(dialog, item), text);
        field(dialog, "zMax").setFocus();
        idle();
        EXPECT_EQ(textOf(field(dialog, item)), shown) << item << ' ' << text;
    }
}
