#include "dialogs/frame/OptionsRulerGridDialog.h"
#include "dialogs/frame/PaperSetupDialog.h"
#include "dialogs/frame/PerformanceDialog.h"
#include "dialogs/frame/PrintRenderOptsDialog.h"
#include "support/KernelDialogTest.h"

using namespace vantrix::sdk::ui::dialogs;
using namespace vantrix::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// One dialog whose edits wait for OK, one of its widgets, and the style value behind that.
struct ModalDialog
{
    char const* name;
    std::function<vantrix::dialogs::common::QtDialogAbstract&(QWidget&)> getInstance;
    char const* button;
    vantrix::toolbox::StringList path;
    long before;
    long after;
    char const* help;
};

template<typename Dialog>
vantrix::dialogs::common::QtDialogAbstract& instance(QWidget& parent)
{
    return Dialog::getInstance(parent);
}

class ModalDialogsTest : public KernelDialogTest, public testing::WithParamInterface<ModalDialog>
{};

} // namespace

TEST_P(ModalDialogsTest, TheStoreHasTheEditAfterOkOnlyAndAsOneStep)
{
    ModalDialog const& about = GetParam();
    auto& dialog = about.getInstance(parent);
    show(dialog);
    click(dialog, about.button);
    EXPECT_EQ(styleOf<long>(about.path), about.before);
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(styleOf<long>(about.path), about.after);
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_EQ(styleOf<long>(about.path), about.before);
    EXPECT_FALSE(VtxUtilUndo());
    EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_P(ModalDialogsTest, CancelAndEscapeDropTheEdit)
{
    ModalDialog const& about = GetParam();
    auto& dialog = about.getInstance(parent);
    for (bool const byEscape : {false, true}) {
        show(dialog);
        bool const shown = isChecked(dialog, about.button);
        click(dialog, about.button);
        if (byEscape) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
        } else {
            click(dialog, QDialogButtonBox::Cancel);
        }
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(styleOf<long>(about.path), about.before);
        show(dialog);
        EXPECT_EQ(isChecked(dialog, about.button), shown) << "what was dropped is not shown again";
        click(dialog, QDialogButtonBox::Cancel);
    }
    EXPECT_FALSE(VtxUtilUndo()) << "nothing to take back";
}

TEST_P(ModalDialogsTest, OpeningShowsWhatTheHostHasMeanwhile)
{
    ModalDialog const& about = GetParam();
    auto& dialog = about.getInstance(parent);
    show(dialog);
    bool const shown = isChecked(dialog, about.button);
    click(dialog, QDialogButtonBox::Cancel);
    setStyle(about.path, about.after);
    show(dialog);
    EXPECT_NE(isChecked(dialog, about.button), shown);
}

TEST_P(ModalDialogsTest, HelpOpensItsPage)
{
    auto& dialog = GetParam().getInstance(parent);
    show(dialog);
    click(dialog, QDialogButtonBox::Help);
    EXPECT_THAT(frontEnd.helpPages, ElementsAre(GetParam().help));
}

INSTANTIATE_TEST_SUITE_P(All, ModalDialogsTest,
                         testing::Values(ModalDialog{"PaperSetup",
                                                     instance<PaperSetupDialog>,
                                                     "paper_SizeA3_RadioButton",
                                                     {"Paper", "PaperSize"},
                                                     PaperSize_Letter,
                                                     PaperSize_A3,
                                                     "paper_setup.html"},
                                         ModalDialog{"Performance",
                                                     instance<PerformanceDialog>,
                                                     "performance_DerivationAccurate_RadioButton",
                                                     {"VariableDerivationMethod"},
                                                     VariableDerivationMethod_Fast,
                                                     VariableDerivationMethod_Accurate,
                                                     "performance.html"},
                                         ModalDialog{"RulerGrid",
                                                     instance<OptionsRulerGridDialog>,
                                                     "rulerGrid_ShowGrid_ToggleButton",
                                                     {"Paper", "ShowGrid"},
                                                     1,
                                                     0,
                                                     "options_ruler_grid.html"},
                                         ModalDialog{"PrintRender",
                                                     instance<PrintRenderOptsDialog>,
                                                     "printRender_Monochrome_RadioButton",
                                                     {"Print", "Color"},
                                                     Palette_Color,
                                                     Palette_Monochrome,
                                                     "print_render_options.html"}),
                         [](auto const& each) { return std::string(each.param.name); });

namespace {

class RulerGridDialogTest : public KernelDialogTest
{};

} // namespace

TEST_F(RulerGridDialogTest, TheRulerOffersTheSpacingsWithAUnitTheGridAll)
{
    auto const& dialog = launch<OptionsRulerGridDialog>();
    auto const& ruler = find<QComboBox>(dialog, "rulerGrid_RulerSpacing_ComboBox");
    auto const& grid = find<QComboBox>(dialog, "rulerGrid_GridSpacing_ComboBox");
    EXPECT_EQ(ruler.count(), 5);
    EXPECT_EQ(grid.count(), 10);
    EXPECT_EQ(ruler.currentText(), QStringLiteral("1 inch"));
    EXPECT_EQ(grid.currentText(), QStringLiteral("1/2 inch"));
    choose(dialog, "rulerGrid_RulerSpacing_ComboBox", "24 points");
    choose(dialog, "rulerGrid_GridSpacing_ComboBox", "1/16 inch");
    click(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(styleOf<long>({"Paper", "RulerSpacing"}), PaperUnitSpacing_TwentyFourPoints);
    EXPECT_EQ(styleOf<long>({"Paper", "PaperGridSpacing"}), PaperUnitSpacing_SixteenthInch);
}

TEST_F(RulerGridDialogTest, OnlyTheGridSpacingGoesWithItsCheckBox)
{
    auto const& dialog = launch<OptionsRulerGridDialog>();
    click(dialog, "rulerGrid_ShowGrid_ToggleButton");
    click(dialog, "rulerGrid_ShowRuler_ToggleButton");
    EXPECT_FALSE(isEnabled(dialog, "rulerGrid_GridSpacing_ComboBox"));
    EXPECT_TRUE(isEnabled(dialog, "rulerGrid_RulerSpacing_ComboBox")) << "it also tells the units in dialogs";
}
