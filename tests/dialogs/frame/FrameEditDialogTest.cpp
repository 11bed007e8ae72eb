#include "dialogs/frame/FrameEditDialog.h"

#include "kernel/Document.h"
#include "support/KernelDialogTest.h"
#include "ui/ColorButton.h"

#include <QMenu>

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vantrix::sdk::ui::common::ColorButton;

namespace {

/// The dialog over a frame 10 inches wide and 5 high at (2, 1).
class FrameEditDialogTest : public KernelDialogTest
{
protected:
    FrameEditDialogTest()
    {
        setStyle({"FrameLayout", "XYPos", "X"}, 2.0);
        setStyle({"FrameLayout", "XYPos", "Y"}, 1.0);
        setStyle({"FrameLayout", "Width"}, 10.0);
        setStyle({"FrameLayout", "Height"}, 5.0);
    }

    /// The choice of the foreground colours lives as long as the process: leave it as it was at first.
    void TearDown() override
    {
        auto& dialog = FrameEditDialog::getInstance(parent);
        if (VtxUtilFrameGetCount() > 0) {
            show(dialog);
            choose(dialog, "frameEdit_ChangeForegroundColor_ComboBox", "Yes");
        }
    }

    static QLineEdit& field(QDialog const& dialog, char const* item)
    {
        return find<QLineEdit>(dialog, (std::string("frameEdit_") + item + "_1Text").c_str());
    }

    static std::vector<std::string> dimensions(QDialog const& dialog)
    {
        std::vector<std::string> result;
        for (char const* const item : {"XPos", "YPos", "Width", "Height"}) {
            result.push_back(textOf(field(dialog, item)));
        }
        return result;
    }

    static void setRuler(long spacing) { setStyle({"Paper", "RulerSpacing"}, spacing); }

    /// Opens the grid of colours and clicks one.
    static void chooseBackground(QDialog const& dialog, int color)
    {
        auto& button = find<ColorButton>(dialog, "frameEdit_BackgroundColor_ColorButton");
        for (auto* const choice : button.popup().findChildren<QAbstractButton*>()) {
            if (choice->property("color") == color) {
                choice->click();
            }
        }
        idle();
    }
};

} // namespace

TEST_F(FrameEditDialogTest, LengthsAreShownInTheUnitsOfTheRulerAndFollowIt)
{
    auto const& dialog = launch<FrameEditDialog>();
    struct Case
    {
        long spacing;
        std::vector<std::string> shown;
    };
    for (Case const& each :
         {Case{1, {"5.08", "2.54", "25.4", "12.7"}}, Case{2, {"5.08", "2.54", "25.4", "12.7"}},
          Case{3, {"0", "0", "0", "0"}}, Case{8, {"0", "0", "0", "0"}}, Case{9, {"144", "72", "720", "360"}},
          Case{10, {"144", "72", "720", "360"}}, Case{5, {"2", "1", "10", "5"}}}) {
        setRuler(each.spacing);
        EXPECT_EQ(dimensions(dialog), each.shown) << "ruler spacing " << each.spacing;
    }
}

TEST_F(FrameEditDialogTest, LengthsAreTakenInTheUnitsOfTheRuler)
{
    auto const& dialog = launch<FrameEditDialog>();
    setRuler(PaperUnitSpacing_OneCentimeter);
    enter(field(dialog, "Width"), "12.7");
    EXPECT_DOUBLE_EQ(styleOf<double>({"FrameLayout", "Width"}), 5.0);
    setRuler(PaperUnitSpacing_TenPoints);
    enter(field(dialog, "XPos"), "-36");
    EXPECT_DOUBLE_EQ(styleOf<double>({"FrameLayout", "XYPos", "X"}), -0.5);
}

TEST_F(FrameEditDialogTest, ARefusedLengthIsToldInTheUnitsOfTheRuler)
{
    auto const& dialog = launch<FrameEditDialog>();
    setRuler(PaperUnitSpacing_HalfCentimeter);
    enter(field(dialog, "Width"), "0.2");
    setRuler(PaperUnitSpacing_TwentyFourPoints);
    enter(field(dialog, "YPos"), "72001");
    EXPECT_THAT(frontEnd.messages,
                ElementsAre("The value must be greater than or equal to 0.254 and less than or equal to 2540",
                            "The value must be greater than or equal to -72000 and less than or equal to 72000"));
    EXPECT_DOUBLE_EQ(styleOf<double>({"FrameLayout", "Width"}), 10.0);
    EXPECT_DOUBLE_EQ(styleOf<double>({"FrameLayout", "XYPos", "Y"}), 1.0);
}

TEST_F(FrameEditDialogTest, WithoutAFactorNoLengthIsTaken)
{
    auto const& dialog = launch<FrameEditDialog>();
    setRuler(PaperUnitSpacing_TenthInch);
    enter(field(dialog, "Height"), "3");
    EXPECT_THAT(frontEnd.messages, ElementsAre(HasSubstr("The value must be greater than")));
    EXPECT_DOUBLE_EQ(styleOf<double>({"FrameLayout", "Height"}), 5.0);
}

TEST_F(FrameEditDialogTest, EveryEditIsSeenAtOnceAndIsOneStepOfUndo)
{
    auto const& dialog = launch<FrameEditDialog>();
    enter(field(dialog, "FrameName"), "Wing");
    enter(field(dialog, "BorderThickness"), "2");
    EXPECT_EQ(styleOf<std::string>({"FrameName"}), "Wing");
    EXPECT_EQ(styleOf<double>({"FrameLayout", "BorderThickness"}), 2.0);
    EXPECT_TRUE(VtxUtilUndo());
    idle();
    EXPECT_EQ(textOf(field(dialog, "BorderThickness")), "0.1");
    EXPECT_EQ(textOf(field(dialog, "FrameName")), "Wing");
}

TEST_F(FrameEditDialogTest, ABurstOfChangesRewritesAFieldOnce)
{
    auto const& dialog = launch<FrameEditDialog>();
    int rewrites = 0;
    QObject::connect(&field(dialog, "Width"), &QLineEdit::textChanged, &parent, [&rewrites] { ++rewrites; });
    for (int change = 1; change <= 100; ++change) {
        vantrix::sdk::AppLock const lock;
        vantrix::toolbox::StyleValue("FrameLayout", "Width").setValue(10.0 + 0.01 * change);
    }
    EXPECT_EQ(rewrites, 0);
    idle();
    EXPECT_EQ(textOf(field(dialog, "Width")), "11");
    EXPECT_EQ(rewrites, 1);
}

TEST_F(FrameEditDialogTest, EveryEditIsACommandOfTheMacroThatIsRecorded)
{
    QTemporaryDir folder;
    std::string const macro = folder.filePath(QStringLiteral("edits.vxmac")).toStdString();
    auto const& dialog = launch<FrameEditDialog>();
    ASSERT_TRUE(VtxUtilMacroRecordStart(macro.c_str()));
    enter(field(dialog, "FrameName"), "Wing");
    enter(field(dialog, "Width"), "7");
    find<QAbstractButton>(dialog, "frameEdit_ShowBorder_ToggleButton").click();
    chooseBackground(dialog, 3);
    EXPECT_TRUE(VtxUtilMacroRecordStop());
    auto const edited = [] {
        return std::tuple(styleOf<std::string>({"FrameName"}), styleOf<double>({"FrameLayout", "Width"}),
                          styleOf<bool>({"FrameLayout", "ShowBorder"}),
                          styleOf<long>({"FrameLayout", "BackgroundColor"}));
    };
    auto const present = edited();
    for (int step = 0; step < 4; ++step) {
        EXPECT_TRUE(VtxUtilUndo());
    }
    EXPECT_NE(edited(), present);
    EXPECT_TRUE(VtxUtilMacroRun(macro.c_str()));
    EXPECT_EQ(edited(), present);
}

TEST_F(FrameEditDialogTest, WhatIsNotShownHasNothingToEdit)
{
    auto const& dialog = launch<FrameEditDialog>();
    struct Case
    {
        char const* check;
        char const* key;
        bool storedWhenChecked;
        std::vector<char const*> controls;
    };
    for (Case const& each : std::initializer_list<Case>{
             {"frameEdit_ShowBorder_ToggleButton",
              "ShowBorder",
              true,
              {"frameEdit_BorderThickness_Label", "frameEdit_BorderThickness_1Text"}},
             {"frameEdit_ShowHeader_ToggleButton",
              "ShowHeader",
              true,
              {"frameEdit_HeaderColor_Label", "frameEdit_HeaderColor_ColorButton"}},
             {"frameEdit_ShowBackground_ToggleButton",
              "IsTransparent",
              false,
              {"frameEdit_BackgroundColor_Label", "frameEdit_BackgroundColor_ColorButton",
               "frameEdit_ChangeForegroundColor_Label", "frameEdit_ChangeForegroundColor_ComboBox"}}}) {
        for (int time = 0; time < 2; ++time) {
            click(dialog, each.check);
            bool const checked = isChecked(dialog, each.check);
            EXPECT_EQ(styleOf<bool>({"FrameLayout", each.key}), checked == each.storedWhenChecked) << each.key;
            for (char const* const control : each.controls) {
                EXPECT_EQ(isEnabled(dialog, control), checked) << control;
                EXPECT_EQ(find<QWidget>(dialog, control).toolTip().contains(QStringLiteral("shows no")), !checked)
                    << control;
            }
        }
    }
}

TEST_F(FrameEditDialogTest, ANewBackgroundChangesForegroundColorsThatEqualIt)
{
    vantrix::toolbox::StringList const textColor{"GlobalScatter", "Legend", "TextColor"};
    vantrix::toolbox::StringList const boxColor{"GlobalScatter", "Legend", "Box", "Color"};
    setStyle(textColor, 3L);
    setStyle(boxColor, 4L);
    auto const& dialog = launch<FrameEditDialog>();
    EXPECT_EQ(find<QComboBox>(dialog, "frameEdit_ChangeForegroundColor_ComboBox").currentText(), QStringLiteral("Yes"));
    chooseBackground(dialog, 3);
    EXPECT_EQ(styleOf<long>({"FrameLayout", "BackgroundColor"}), 3);
    EXPECT_NE(styleOf<long>(textColor), 3);
    EXPECT_EQ(styleOf<long>(boxColor), 4);
    EXPECT_TRUE(VtxUtilUndo()) << "one step";
    EXPECT_EQ(styleOf<long>({"FrameLayout", "BackgroundColor"}), 7);
    EXPECT_EQ(styleOf<long>(textColor), 3);
}

TEST_F(FrameEditDialogTest, ANewBackgroundLeavesForegroundColorsWhereTheUserSaysSo)
{
    vantrix::toolbox::StringList const textColor{"GlobalScatter", "Legend", "TextColor"};
    setStyle(textColor, 3L);
    auto const& dialog = launch<FrameEditDialog>();
    choose(dialog, "frameEdit_ChangeForegroundColor_ComboBox", "No");
    chooseBackground(dialog, 3);
    EXPECT_EQ(styleOf<long>({"FrameLayout", "BackgroundColor"}), 3);
    EXPECT_EQ(styleOf<long>(textColor), 3);
}

TEST_F(FrameEditDialogTest, TheForegroundChoiceOutlivesTheDialog)
{
    {
        QWidget firstParent;
        auto& dialog = FrameEditDialog::getInstance(firstParent);
        show(dialog);
        choose(dialog, "frameEdit_ChangeForegroundColor_ComboBox", "No");
    }
    auto const& dialog = launch<FrameEditDialog>();
    EXPECT_EQ(find<QComboBox>(dialog, "frameEdit_ChangeForegroundColor_ComboBox").currentText(), QStringLiteral("No"));
}

TEST_F(FrameEditDialogTest, FollowsTheActiveFrameAndIsOffWithoutOne)
{
    auto const& dialog = launch<FrameEditDialog>();
    auto& document = vantrix::kernel::Kernel::instance().document();
    long const first = document.activeFrame()->id();
    long second = 0;
    {
        vantrix::sdk::AppLock const lock;
        second = document.addFrame()->id();
    }
    setStyle({"FrameLayout", "Width"}, 4.0);
    EXPECT_EQ(textOf(field(dialog, "Width")), "4");
    {
        vantrix::sdk::AppLock const lock;
        document.setActiveFrame(first);
    }
    idle();
    EXPECT_EQ(textOf(field(dialog, "Width")), "10");
    {
        vantrix::sdk::AppLock const lock;
        document.deleteFrame(first);
        document.deleteFrame(second);
    }
    idle();
    EXPECT_FALSE(isEnabled(dialog, "frameEdit_Width_1Text"));
    EXPECT_TRUE(find<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Close)->isEnabled());
}
