#include "dialogs/zone/CreateCircularZoneDialog.h"

#include "CreateZoneDialogTest.h"
#include "dialogs/DialogRegistry.h"
#include "propertymanager/managers/zone/CreateCircularZonePropertiesManager.h"

#include <QDialogButtonBox>
#include <QLabel>

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using testing::ElementsAre;
using testing::IsEmpty;
using vantrix::sdk::ui::propertymanager::CreateCircularZonePropertiesManager;

namespace {

/// The dialog over a 3D plot of data from (0, 0, -1) to (6, 8, 5).
class CreateCircularZoneDialogTest : public CreateZoneDialogTest
{
protected:
    CreateCircularZoneDialogTest()
        : CreateZoneDialogTest(0.0)
    {
        // Dimensions live as long as the process: begin each test with the first ones.
        CreateCircularZonePropertiesManager const manager;
        manager.IDim()->setValue(10);
        manager.JDim()->setValue(25);
        manager.KDim()->setValue(10);
    }

    CreateCircularZoneDialog& launch() { return launchDialog<CreateCircularZoneDialog>(); }

    static QLineEdit& field(QDialog const& dialog, char const* item)
    {
        return find<QLineEdit>(dialog, (std::string("createCircularZone_") + item + "_1Text").c_str());
    }

    static std::vector<std::string> texts(QDialog const& dialog)
    {
        std::vector<std::string> result;
        for (char const* const item : {"IDim", "JDim", "KDim", "Radius", "XOrigin", "YOrigin", "ZMin", "ZMax"}) {
            result.push_back(textOf(field(dialog, item)));
        }
        return result;
    }

    static QPushButton& create(QDialog const& dialog) { return button(dialog, QStringLiteral("Cr&eate")); }

    static std::vector<bool> threeDElementsEnabled(QDialog const& dialog)
    {
        return enabled(dialog, {"createCircularZone_TopToBottom_Label", "createCircularZone_KDim_1Text",
                                "createCircularZone_ZMin_Label", "createCircularZone_ZMin_1Text",
                                "createCircularZone_ZMax_Label", "createCircularZone_ZMax_1Text"});
    }
};

} // namespace

TEST_F(CreateCircularZoneDialogTest, ShowsDefaultDimensionsAndACircleAroundTheData)
{
    auto const& dialog = launch();
    EXPECT_THAT(texts(dialog), ElementsAre("10", "25", "10", "5", "3", "4", "-1", "5"));
    EXPECT_EQ(&CreateCircularZoneDialog::getInstance(parent), &dialog);
    EXPECT_EQ(QApplication::focusWidget(), &field(dialog, "IDim"));
}

TEST_F(CreateCircularZoneDialogTest, ASketchStartsWithTheUnitCircle)
{
    host.plotType = PlotType_Sketch;
    host.dataSetIsAvailable = false;
    auto const& dialog = launch();
    EXPECT_THAT(texts(dialog), ElementsAre("10", "25", "10", "1", "0", "0", "0", "1"));
    create(dialog).click();
    EXPECT_EQ(host.circularZones.size(), 1u);
    EXPECT_THAT(host.statusMessages, IsEmpty()) << "the first zone of a data set is not announced";
}

TEST_F(CreateCircularZoneDialogTest, CreateCallsTheHostUnderOneRecordedLockAndAnnouncesTheZone)
{
    auto const& dialog = launch();
    enter(field(dialog, "IDim"), "11");
    enter(field(dialog, "JDim"), "12");
    enter(field(dialog, "KDim"), "13");
    enter(field(dialog, "Radius"), "2.5");
    enter(field(dialog, "XOrigin"), "-1");
    enter(field(dialog, "YOrigin"), "-2");
    enter(field(dialog, "ZMin"), "-3");
    typeInto(field(dialog, "ZMax"), "4e1");
    QTest::mouseClick(&create(dialog), Qt::LeftButton);
    EXPECT_THAT(host.circularZones,
                ElementsAre(RecordingHost::CircularZone{11, 12, 13, -1, -2, 2.5, -3, 40, FieldDataType_Float}));
    EXPECT_TRUE(host.createdUnderLock);
    EXPECT_TRUE(host.lastLockRecorded);
    EXPECT_EQ(host.lockDepth, 0);
    EXPECT_THAT(host.statusMessages, ElementsAre("Circular zone created."));
    EXPECT_THAT(host.errors, IsEmpty());
}

TEST_F(CreateCircularZoneDialogTest, AFailureIsToldAndTheFieldsKeepTheirValues)
{
    host.createSucceeds = false;
    auto const& dialog = launch();
    enter(field(dialog, "IDim"), "2147483646");
    create(dialog).click();
    EXPECT_THAT(host.errors, ElementsAre("Error creating circular zone. One or more index values may be too large."));
    EXPECT_THAT(host.statusMessages, IsEmpty());
    EXPECT_EQ(textOf(field(dialog, "IDim")), "2147483646");
}

TEST_F(CreateCircularZoneDialogTest, TheMouseModeIsAsBeforeIfItStillCan)
{
    auto const& dialog = launch();
    host.mouseMode = MouseMode_Zoom;
    host.onCreateZone = [this] { host.mouseMode = MouseMode_Selector; };
    create(dialog).click();
    EXPECT_EQ(host.mouseMode, MouseMode_Zoom);

    host.mouseMode = MouseMode_Rotate; // not among the valid modes
    create(dialog).click();
    EXPECT_EQ(host.mouseMode, MouseMode_Selector);
}

TEST_F(CreateCircularZoneDialogTest, DimensionsAreRememberedCoordinatesComputedAfresh)
{
    {
        QWidget firstParent;
        auto& dialog = CreateCircularZoneDialog::getInstance(firstParent);
        dialog.launch();
        enter(field(dialog, "JDim"), "77");
        enter(field(dialog, "Radius"), "9");
    }
    EXPECT_THAT(texts(launch()), ElementsAre("10", "77", "10", "5", "3", "4", "-1", "5"));
}

TEST_F(CreateCircularZoneDialogTest, ARadiusOfZeroIsRefusedWithTheLimits)
{
    auto const& dialog = launch();
    enter(field(dialog, "Radius"), "0");
    EXPECT_THAT(host.messages, ElementsAre("The value must be greater than 0 and less than or equal to 1.79769e+308."));
    EXPECT_EQ(textOf(field(dialog, "Radius")), "5");
    typeInto(field(dialog, "Radius"), "-1");
    QTest::mouseClick(&create(dialog), Qt::LeftButton);
    EXPECT_EQ(host.messages.size(), 2u);
    EXPECT_THAT(host.circularZones, IsEmpty()) << "no zone with a radius that the user did not ask for";
}

TEST_F(CreateCircularZoneDialogTest, EachFieldTakesNumbersInItsRangeOnly)
{
    auto const& dialog = launch();
    struct Case
    {
        char const* item;
        char const* text;
        char const* shown;
    };
    for (Case const& each : std::initializer_list<Case>{{"IDim", "1", "10"},
                                                        {"IDim", "2", "2"},
                                                        {"JDim", "3", "25"},
                                                        {"JDim", "4", "4"},
                                                        {"KDim", "0", "10"},
                                                        {"KDim", "1", "1"},
                                                        {"XOrigin", "1e151", "3"},
                                                        {"XOrigin", "-1e150", "-1e+150"},
                                                        {"YOrigin", "3,14", "4"}}) {
        typeInto(field(dialog, each.item), each.text);
        field(dialog, "ZMax").setFocus();
        idle();
        EXPECT_EQ(textOf(field(dialog, each.item)), each.shown) << each.item << ' ' << each.text;
    }
    EXPECT_THAT(host.messages, IsEmpty());
}

TEST_F(CreateCircularZoneDialogTest, WithoutAThirdAxisKIsOneAndItsFieldsAreOff)
{
    auto const& dialog = launch();
    EXPECT_EQ(threeDElementsEnabled(dialog), allSix);
    host.plotType = PlotType_Cartesian2D;
    host.notify(StateChange_ZoneName);
    idle();
    EXPECT_EQ(threeDElementsEnabled(dialog), allSix) << "a name has nothing to do with it";

    host.notify(StateChange_NewActiveFrame);
    idle();
    EXPECT_EQ(threeDElementsEnabled(dialog), none);
    EXPECT_EQ(textOf(field(dialog, "KDim")), "1");
    EXPECT_THAT(field(dialog, "KDim").toolTip().toStdString(), testing::HasSubstr("no third axis"));

    host.plotType = PlotType_Cartesian3D;
    host.define({"PlotType"}, 1L);
    host.change({"PlotType"}, 2L);
    idle();
    EXPECT_EQ(threeDElementsEnabled(dialog), allSix);
}

TEST_F(CreateCircularZoneDialogTest, WhatItCreatesItselfDoesNotAskForTheThirdAxisAgain)
{
    auto const& dialog = launch();
    host.onCreateZone = [this] {
        host.plotType = PlotType_Cartesian2D;
        host.notify(StateChange_ZonesAdded);
    };
    create(dialog).click();
    idle();
    EXPECT_EQ(threeDElementsEnabled(dialog), allSix);
    host.notify(StateChange_ZonesAdded);
    idle();
    EXPECT_EQ(threeDElementsEnabled(dialog), none);
}

TEST_F(CreateCircularZoneDialogTest, IsForCartesianPlotsAndEmptySketches)
{
    auto const relevance = CreateCircularZoneDialog::relevance();
    struct Case
    {
        PlotType_e plotType;
        bool withData;
        bool relevant;
    };
    for (Case const& each : {Case{PlotType_Cartesian3D, true, true}, Case{PlotType_Cartesian2D, true, true},
                             Case{PlotType_Sketch, false, true}, Case{PlotType_Sketch, true, false},
                             Case{PlotType_XYLine, true, false}, Case{PlotType_PolarLine, true, false}}) {
        host.plotType = each.plotType;
        host.dataSetIsAvailable = each.withData;
        EXPECT_EQ(relevance->isRelevant(), each.relevant) << each.plotType << each.withData;
    }
    host.plotType = PlotType_Cartesian2D;
    host.frameCount = 0;
    EXPECT_FALSE(relevance->isRelevant());
    host.frameCount = 1;
    host.pageCount = 0;
    EXPECT_FALSE(relevance->isRelevant());
}

TEST_F(CreateCircularZoneDialogTest, DataWithoutExtentAreToldWhenTheDialogIsLaunched)
{
    host.extents = {{1, {2.0, 2.0}}, {2, {3.0, 3.0}}};
    auto const isCircular = [](DialogEntry const& each) {
        return each.name() == QStringLiteral("create_zone_circular");
    };
    DialogEntry const& entry = *std::find_if(dialogRegistry().begin(), dialogRegistry().end(), isCircular);
    EXPECT_FALSE(entry.launch(parent));
    EXPECT_THAT(host.errors, ElementsAre("The value must be greater than 0 and less than or equal to 1.79769e+308."));
    host.extents = {{1, {2.0, 4.0}}};
    auto* const dialog = entry.launch(parent);
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->isVisible());
    entry.drop();
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(CreateCircularZoneDialogTest, HelpOpensItsPageAndLabelsLeadToTheirFields)
{
    auto const& dialog = launch();
    QTest::keyClick(&field(dialog, "IDim"), Qt::Key_F1);
    EXPECT_THAT(host.helpPages, ElementsAre("create_zone_circular.html"));
    QTest::keyClick(&field(dialog, "IDim"), Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &field(dialog, "Radius"));
}
