#include "dialogs/frame/PaperSetupDialog.h"

#include "support/KernelDialogTest.h"

#include <QGroupBox>
#include <QLabel>

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;

namespace {

class PaperSetupDialogTest : public KernelDialogTest
{
protected:
    static void setRuler(long spacing) { setStyle({"Paper", "RulerSpacing"}, spacing); }

    static std::string title(QDialog const& dialog)
    {
        return find<QGroupBox>(dialog, "paper_Dimensions_GroupBox").title().toStdString();
    }

    static std::string dimensions(QDialog const& dialog)
    {
        return (find<QLabel>(dialog, "paper_Width_Dynamic").text() + QStringLiteral(" x ") +
                find<QLabel>(dialog, "paper_Height_Dynamic").text())
            .toStdString();
    }
};

} // namespace

TEST_F(PaperSetupDialogTest, EachSizeShowsItsDimensionsBeforeItIsSet)
{
    auto const& dialog = launch<PaperSetupDialog>();
    struct Case
    {
        char const* button;
        char const* portrait;
        char const* landscape;
    };
    for (Case const& each : {Case{"paper_SizeLetter_RadioButton", "8.5 x 11", "11 x 8.5"},
                             Case{"paper_SizeDouble_RadioButton", "11 x 17", "17 x 11"},
                             Case{"paper_SizeA4_RadioButton", "8.26772 x 11.6929", "11.6929 x 8.26772"},
                             Case{"paper_SizeA3_RadioButton", "11.6929 x 16.5354", "16.5354 x 11.6929"},
                             Case{"paper_SizeCustom1_RadioButton", "8.5 x 14", "14 x 8.5"},
                             Case{"paper_SizeCustom2_RadioButton", "8.5 x 14", "14 x 8.5"}}) {
        click(dialog, each.button);
        click(dialog, "paper_Portrait_RadioButton");
        EXPECT_EQ(dimensions(dialog), each.portrait) << each.button;
        click(dialog, "paper_Landscape_RadioButton");
        EXPECT_EQ(dimensions(dialog), each.landscape) << each.button;
    }
    EXPECT_EQ(styleOf<long>({"Paper", "PaperSize"}), PaperSize_Letter);
}

TEST_F(PaperSetupDialogTest, DimensionsAreInTheUnitsOfTheRulerAndTheTitleTellsWhich)
{
    auto const& dialog = launch<PaperSetupDialog>();
    struct Case
    {
        long spacing;
        char const* title;
        char const* dimensions;
    };
    for (Case const& each : {Case{1, "Dimensions (cm)", "27.94 x 21.59"}, Case{5, "Dimensions (inches)", "11 x 8.5"},
                             Case{10, "Dimensions (points)", "792 x 612"}, Case{2, "Dimensions (cm)", "27.94 x 21.59"},
                             Case{9, "Dimensions (points)", "792 x 612"}, Case{3, "Dimensions (points)", "0 x 0"}}) {
        setRuler(each.spacing);
        EXPECT_EQ(title(dialog), each.title) << each.spacing;
        EXPECT_EQ(dimensions(dialog), each.dimensions) << each.spacing;
    }
    setRuler(1);
    click(dialog, "paper_SizeA4_RadioButton");
    EXPECT_EQ(dimensions(dialog), "29.7 x 21");
}

TEST_F(PaperSetupDialogTest, TheFillColorIsForPaperThatIsShownOrPrinted)
{
    auto const& dialog = launch<PaperSetupDialog>();
    struct Case
    {
        bool shown;
        bool printed;
    };
    for (Case const& each : {Case{true, true}, Case{true, false}, Case{false, false}, Case{false, true}}) {
        find<QAbstractButton>(dialog, "paper_ShowOnScreen_ToggleButton").setChecked(each.shown);
        find<QAbstractButton>(dialog, "paper_ShowBackColor_ToggleButton").setChecked(each.printed);
        idle();
        EXPECT_EQ(isEnabled(dialog, "paper_Color_ColorAndTextButton"), each.shown || each.printed);
        EXPECT_EQ(isEnabled(dialog, "paper_Color_Label"), each.shown || each.printed);
    }
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_FALSE(styleOf<bool>({"Paper", "ShowPaper"}));
    EXPECT_FALSE(styleOf<bool>({"Paper", "IsTransparent"})) << "a fill that is printed is not transparent";
}

TEST_F(PaperSetupDialogTest, OnlyAnotherSizeOrOrientationFitsTheWorkArea)
{
    auto& dialog = launch<PaperSetupDialog>();
    click(dialog, "paper_ShowOnScreen_ToggleButton");
    click(dialog, "paper_SizeA4_RadioButton");
    click(dialog, "paper_SizeLetter_RadioButton");
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(frontEnd.fits, 0);

    show(dialog);
    click(dialog, "paper_SizeA4_RadioButton");
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(frontEnd.fits, 1);

    show(dialog);
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(frontEnd.fits, 1) << "the size was remembered when the dialog was opened again";

    show(dialog);
    click(dialog, "paper_Portrait_RadioButton");
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(frontEnd.fits, 2);
}
