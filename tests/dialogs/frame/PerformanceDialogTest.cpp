#include "dialogs/frame/PerformanceDialog.h"

#include "support/KernelDialogTest.h"

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class PerformanceDialogTest : public KernelDialogTest
{
protected:
    static void typeThresholds(QDialog const& dialog, char const* minimum, char const* maximum)
    {
        typeInto(find<QLineEdit>(dialog, "performance_MemoryThresholdMin_1Text"), minimum);
        typeInto(find<QLineEdit>(dialog, "performance_MemoryThresholdMax_1Text"), maximum);
    }

    static bool flag(char const* name) { return styleOf<bool>({"Interface", name}); }

    static void applyChoice(PerformanceDialog& dialog, char const* button)
    {
        show(dialog);
        click(dialog, button);
        click(dialog, QDialogButtonBox::Ok);
    }
};

} // namespace

TEST_F(PerformanceDialogTest, ThresholdsArePercentOfTheHostsFractions)
{
    auto const& dialog = launch<PerformanceDialog>();
    EXPECT_EQ(textOf(find<QLineEdit>(dialog, "performance_MemoryThresholdMin_1Text")), "70");
    EXPECT_EQ(textOf(find<QLineEdit>(dialog, "performance_MemoryThresholdMax_1Text")), "90");
    typeThresholds(dialog, "0", "100");
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(styleOf<double>({"Limits", "LodThresholdMinFract"}), 0.0);
    EXPECT_EQ(styleOf<double>({"Limits", "LodThresholdMaxFract"}), 1.0);
}

TEST_F(PerformanceDialogTest, ThresholdsAreCheckedForTheirOrderFirstAndThenForTheirRange)
{
    auto const& dialog = launch<PerformanceDialog>();
    std::string const order = "Minimum value must be less than the maximum for the load on demand memory threshold.";
    std::string const range = "Minimum and maximum values must be between 0 and 100.";
    struct Case
    {
        char const* minimum;
        char const* maximum;
        std::string message;
    };
    for (Case const& each :
         {Case{"50", "50", order}, Case{"60", "40", order}, Case{"120", "110", order}, Case{"10", "101", range},
          Case{"-1", "50", range}, Case{"-2", "-1", range}, Case{"110", "120", range}}) {
        frontEnd.messages.clear();
        typeThresholds(dialog, each.minimum, each.maximum);
        click(dialog, QDialogButtonBox::Ok);
        EXPECT_THAT(frontEnd.messages, ElementsAre(each.message)) << each.minimum << ' ' << each.maximum;
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(textOf(find<QLineEdit>(dialog, "performance_MemoryThresholdMax_1Text")), each.maximum);
    }
    EXPECT_EQ(styleOf<double>({"Limits", "LodThresholdMinFract"}), 0.7);
}

TEST_F(PerformanceDialogTest, AChoiceOfThreeIsKeptInTwoFlagsAndTheThirdLeavesTheSecondFlag)
{
    auto& dialog = launch<PerformanceDialog>();
    struct Case
    {
        char const* button;
        char const* first;
        bool firstValue;
        char const* second;
        bool secondValue;
    };
    for (Case const& each : std::initializer_list<Case>{
             {"performance_CacheLight_RadioButton", "UseDisplayLists", true, "CacheLightDisplayListsOnly", true},
             {"performance_CacheNone_RadioButton", "UseDisplayLists", false, "CacheLightDisplayListsOnly", true},
             {"performance_CacheAll_RadioButton", "UseDisplayLists", true, "CacheLightDisplayListsOnly", false},
             {"performance_CacheNone_RadioButton", "UseDisplayLists", false, "CacheLightDisplayListsOnly", false},
             {"performance_FontLargeOnly_RadioButton", "UseStrokeFontsOnScreen", false, "UseStrokeFontsForSmallText",
              true},
             {"performance_FontNever_RadioButton", "UseStrokeFontsOnScreen", true, "UseStrokeFontsForSmallText", true},
             {"performance_FontWhenPossible_RadioButton", "UseStrokeFontsOnScreen", false, "UseStrokeFontsForSmallText",
              false},
             {"performance_FontNever_RadioButton", "UseStrokeFontsOnScreen", true, "UseStrokeFontsForSmallText",
              false}}) {
        applyChoice(dialog, each.button);
        EXPECT_EQ(flag(each.first), each.firstValue) << each.button;
        EXPECT_EQ(flag(each.second), each.secondValue) << each.button;
        show(dialog);
        EXPECT_TRUE(isChecked(dialog, each.button)) << each.button << " is shown again";
    }
}

TEST_F(PerformanceDialogTest, ControlsThatMeanNothingAreOff)
{
    auto const& dialog = launch<PerformanceDialog>();
    auto const set = [&dialog](char const* button, bool checked) {
        find<QAbstractButton>(dialog, button).setChecked(checked);
        idle();
    };
    set("performance_ApproximatePlots_ToggleButton", false);
    EXPECT_FALSE(isEnabled(dialog, "performance_ApproximationAll_RadioButton"));
    EXPECT_FALSE(isEnabled(dialog, "performance_RenderTime_1Text"));
    EXPECT_FALSE(isEnabled(dialog, "performance_PercentOfPoints_1Text"));
    set("performance_ApproximatePlots_ToggleButton", true);
    EXPECT_TRUE(isEnabled(dialog, "performance_RenderTime_1Text"));
    set("performance_ApproximationAll_RadioButton", true);
    EXPECT_FALSE(isEnabled(dialog, "performance_RenderTime_1Text"));
    EXPECT_TRUE(isEnabled(dialog, "performance_PercentOfPoints_1Text"));

    choose(dialog, "performance_UnloadStrategy_ComboBox", "Never unload");
    EXPECT_FALSE(isEnabled(dialog, "performance_MemoryThresholdMin_1Text"));
    choose(dialog, "performance_UnloadStrategy_ComboBox", "Auto unload");
    EXPECT_TRUE(isEnabled(dialog, "performance_MemoryThresholdMin_1Text"));

    set("performance_StatusLine_ToggleButton", false);
    EXPECT_FALSE(isEnabled(dialog, "performance_StatusMessages_ToggleButton"));
    EXPECT_FALSE(isEnabled(dialog, "performance_Coordinates_ToggleButton"));
}

TEST_F(PerformanceDialogTest, AValueThatTheHostRefusesIsNamedAndNothingIsApplied)
{
    auto const& dialog = launch<PerformanceDialog>();
    click(dialog, "performance_AutoRedraw_ToggleButton");
    click(dialog, "performance_StatusLine_ToggleButton");
    typeInto(find<QLineEdit>(dialog, "performance_PercentOfPoints_1Text"), "400");
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_THAT(frontEnd.messages, ElementsAre(AllOf(StartsWith("\"Approximate plot as % of full plot\": "),
                                                     HasSubstr("PercentageOfPointsToKeep"))));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &find<QLineEdit>(dialog, "performance_PercentOfPoints_1Text"));
    EXPECT_TRUE(flag("AutoRedrawIsActive"));
    EXPECT_TRUE(flag("ShowStatusLine"));
    EXPECT_EQ(textOf(find<QLineEdit>(dialog, "performance_PercentOfPoints_1Text")), "400");

    typeInto(find<QLineEdit>(dialog, "performance_PercentOfPoints_1Text"), "40");
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(frontEnd.messages.size(), 1u);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(flag("AutoRedrawIsActive"));
    EXPECT_TRUE(VtxUtilUndo()) << "all of it is one step";
    EXPECT_TRUE(flag("AutoRedrawIsActive"));
    EXPECT_TRUE(flag("ShowStatusLine"));
    EXPECT_EQ(styleOf<double>({"Interface", "PercentageOfPointsToKeep"}), 25.0);
}
