#include "dialogs/frame/PerformanceDialog.h"

#include "dialogs/DialogInstance.h"
#include "dialogs/FormBindings.h"
#include "propertybindings/RadioButtonPropertyBindingImpl.h"
#include "propertymanager/managers/frame/PerformancePropertiesManager.h"
#include "ui/LaunchHelpAction.h"
#include "ui_PerformanceDialog.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertymanager;

class PerformanceDialogImpl
{
public:
    explicit PerformanceDialogImpl(PerformanceDialog& dialog);

    PerformancePropertiesManager& manager() { return m_manager; }
    FormBindings const& bindings() const { return m_bindings; }
    QPushButton* okButton() const { return m_form.buttonBox->button(QDialogButtonBox::Ok); }

private:
    void setupRenderingBindings();
    void setupChoiceBindings();
    void setupDataBindings();
    void bindRelevanciesToControls();

    PerformancePropertiesManager m_manager;
    Ui::Performance m_form;
    FormBindings m_bindings;
};

PerformanceDialogImpl::PerformanceDialogImpl(PerformanceDialog& dialog)
{
    m_form.setupUi(&dialog);
    setupRenderingBindings();
    setupChoiceBindings();
    setupDataBindings();
    bindRelevanciesToControls();
}

void PerformanceDialogImpl::setupRenderingBindings()
{
    auto& set = m_manager.properties();
    auto const mode = set.plotapproximationmode();

    m_bindings.bindCheck(m_form.performance_AutoRedraw_ToggleButton, set.autoredrawisactive());
    m_bindings.bindCheck(m_form.performance_ApproximatePlots_ToggleButton, set.useapproximateplots());
    m_bindings.bindChoice(m_form.performance_ApproximationAutomatic_RadioButton, mode, PlotApproximationMode_Automatic);
    m_bindings.bindChoice(m_form.performance_ApproximationNonActive_RadioButton, mode,
                          PlotApproximationMode_NonActiveAlwaysApproximated);
    m_bindings.bindChoice(m_form.performance_ApproximationAll_RadioButton, mode,
                          PlotApproximationMode_AllAlwaysApproximated);
    m_bindings.bindField(m_form.performance_RenderTime_1Text, set.rendertimethreshold());
    m_bindings.bindField(m_form.performance_PercentOfPoints_1Text, set.percentageofpointstokeep());
    m_bindings.bindCheck(m_form.performance_ShowTextGeoms_ToggleButton, set.showtextgeomsinapproxviews());
}

void PerformanceDialogImpl::setupChoiceBindings()
{
    auto& set = m_manager.properties();
    auto const cache = m_manager.graphicsCacheLevel();
    auto const font = m_manager.highQualityFontOption();
    auto const offScreen = set.useoffscreenbitmap();
    auto const derivation = set.variablederivationmethod();

    m_bindings.bindChoice(m_form.performance_CacheAll_RadioButton, cache, GraphicsCacheLevel_All);
    m_bindings.bindChoice(m_form.performance_CacheLight_RadioButton, cache, GraphicsCacheLevel_LightOnly);
    m_bindings.bindChoice(m_form.performance_CacheNone_RadioButton, cache, GraphicsCacheLevel_None);
    m_bindings.bindChoice(m_form.performance_FontWhenPossible_RadioButton, font, HighQualityFont_WhenPossible);
    m_bindings.bindChoice(m_form.performance_FontLargeOnly_RadioButton, font, HighQualityFont_LargeOnly);
    m_bindings.bindChoice(m_form.performance_FontNever_RadioButton, font, HighQualityFont_Never);
    m_bindings.remember(m_form.performance_CacheAll_RadioButton, *set.usedisplaylists());
    m_bindings.remember(m_form.performance_CacheAll_RadioButton, *set.cachelightdisplaylistsonly());
    m_bindings.remember(m_form.performance_FontWhenPossible_RadioButton, *set.usestrokefontsonscreen());
    m_bindings.remember(m_form.performance_FontWhenPossible_RadioButton, *set.usestrokefontsforsmalltext());
    m_bindings.bindChoice(m_form.performance_ExportOffScreen_RadioButton, offScreen, true);
    m_bindings.bindChoice(m_form.performance_ExportOnScreen_RadioButton, offScreen, false);
    m_bindings.bindChoice(m_form.performance_DerivationFast_RadioButton, derivation, VariableDerivationMethod_Fast);
    m_bindings.bindChoice(m_form.performance_DerivationAccurate_RadioButton, derivation,
                          VariableDerivationMethod_Accurate);
}

void PerformanceDialogImpl::setupDataBindings()
{
    auto& set = m_manager.properties();

    m_bindings.bindCheck(m_form.performance_MemoryMappedIO_ToggleButton, set.usememorymappedio());
    m_bindings.bindField(m_form.performance_MemoryThresholdMin_1Text, set.lodthresholdminfract());
    m_bindings.bindField(m_form.performance_MemoryThresholdMax_1Text, set.lodthresholdmaxfract());
    m_bindings.bindList(m_form.performance_UnloadStrategy_ComboBox, set.unloadstrategy(),
                        m_manager.unloadStrategyModel());
    m_bindings.bindCheck(m_form.performance_StatusMessages_ToggleButton, set.showcontinuousstatus());
    m_bindings.bindCheck(m_form.performance_Coordinates_ToggleButton, set.showcoordinates());
    m_bindings.bindCheck(m_form.performance_StatusLine_ToggleButton, set.showstatusline());
}

void PerformanceDialogImpl::bindRelevanciesToControls()
{
    m_bindings.apply(m_manager.isMacroRecordingNotActive(), {m_form.performance_AutoRedraw_ToggleButton});
    m_bindings.apply(m_manager.isUsingApproximatePlots(),
                     {m_form.performance_ApproximationAutomatic_RadioButton,
                      m_form.performance_ApproximationNonActive_RadioButton,
                      m_form.performance_ApproximationAll_RadioButton, m_form.performance_PercentOfPoints_Label,
                      m_form.performance_PercentOfPoints_1Text, m_form.performance_ShowTextGeoms_ToggleButton});
    m_bindings.apply(m_manager.isRenderTimeRelevant(),
                     {m_form.performance_RenderTime_Label, m_form.performance_RenderTime_1Text});
    m_bindings.apply(m_manager.isUnloadingStrategyAuto(),
                     {m_form.performance_MemoryThreshold_Label, m_form.performance_MemoryThresholdMin_Label,
                      m_form.performance_MemoryThresholdMin_1Text, m_form.performance_MemoryThresholdMax_Label,
                      m_form.performance_MemoryThresholdMax_1Text});
    m_bindings.apply(m_manager.isShowingStatusLine(),
                     {m_form.performance_StatusMessages_ToggleButton, m_form.performance_Coordinates_ToggleButton});
}

PerformanceDialog& PerformanceDialog::getInstance(QWidget& parent)
{
    return dialogInstance<PerformanceDialog>([&parent] { return new PerformanceDialog(parent); });
}

PerformanceDialog::PerformanceDialog(QWidget& parent)
    : ModalDialogAbstract(parent, nullptr)
    , m_impl(std::make_unique<PerformanceDialogImpl>(*this))
{
    setOkButton(m_impl->okButton());
    setBindings(m_impl->bindings());
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("performance.html"), this));
}

PerformanceDialog::~PerformanceDialog() = default;

void PerformanceDialog::init()
{
    m_impl->manager().init();
}

bool PerformanceDialog::submit()
{
    return m_impl->manager().submit();
}

} // namespace vantrix::sdk::ui::dialogs
