#include "dialogs/axis/AxisEditRangePage.h"

#include "api/VtxUtil.h"
#include "propertymanager/SpinBoxIncDecCalculatorPercentage.h"
#include "propertymanager/managers/axis/AxisRangeSpinBoxIncDecCalculator.h"
#include "ui/relevance/RelevanceExpression.h"
#include "ui_AxisEditDialog.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertymanager;
using Manager = AxisEditRangePageManager;

namespace {

constexpr double ProportionStepPercent = 10.0;

} // namespace

AxisEditRangePage::AxisEditRangePage(QWidget& /*parent*/, Ui::AxisEdit& form, AxisEditProperties& properties)
    : m_form(form)
    , m_properties(properties)
    , m_manager(properties)
{
    createBindings();
    bindRelevanciesToControls();
}

AxisEditRangePage::~AxisEditRangePage()
{
    delete m_menu;
}

void AxisEditRangePage::createBindings()
{
    auto& m = m_manager;
    auto const rangeSteps =
        boost::make_shared<AxisRangeSpinBoxIncDecCalculator>(m_properties, m.getAutoAdjustToNiceValues());
    m_bindings.bindSpinBox(m_form.axisEdit_RangeMin_1Text, m.getMin(), rangeSteps);
    m_bindings.bindSpinBox(m_form.axisEdit_RangeMax_1Text, m.getMax(), rangeSteps);
    m_bindings.bindAction(m_form.axisEdit_RangeReset_Button, [this] { axisEdit_RangeReset_Button_clicked(); });
    m_bindings.bindCheck(m_form.axisEdit_RangePreserveLength_ToggleButton, m.getPreserveLength());
    m_bindings.bindCheck(m_form.axisEdit_RangeLogScale_ToggleButton, m.getUseLogScale());
    m_bindings.bindCheck(m_form.axisEdit_RangeReverseDir_ToggleButton, m.getReverseDirection());
    m_bindings.bindCheck(m_form.axisEdit_RangePolarClipToAxis_ToggleButton, m.getClipData());
    m_bindings.bindCheck(m_form.axisEdit_RangeAutoAdjustToNiceValues_ToggleButton, m.getAutoAdjustToNiceValues());

    auto& mode = m.getAxisMode();
    m_bindings.bindChoice(m_form.axisEdit_RangeAxisSpec2DDependent_RadioButton, mode, AxisMode_XYDependent);
    m_bindings.bindChoice(m_form.axisEdit_RangeAxisSpec2DIndependent_RadioButton, mode, AxisMode_Independent);
    m_bindings.bindText(m_form.axisEdit_RangeAxisSpec2DRatio_Label, m.getXtoYRatioLabel());
    bindProportion(m_form.axisEdit_RangeAxisSpec2DRatio_1Text, m.getXtoYRatio());

    m_bindings.bindChoice(m_form.axisEdit_RangeAxisSpec3DIndep_RadioButton, mode, AxisMode_Independent);
    m_bindings.bindChoice(m_form.axisEdit_RangeAxisSpec3DXY_RadioButton, mode, AxisMode_XYDependent);
    m_bindings.bindChoice(m_form.axisEdit_RangeAxisSpec3DXYZ_RadioButton, mode, AxisMode_XYZDependent);
    bindProportion(m_form.axisEdit_RangeAxisSpec3DXYRatio_1Text, m.getXtoYRatio());
    bindProportion(m_form.axisEdit_RangeAxisSpec3DXZRatio_1Text, m.getXtoZRatio());
    bindProportion(m_form.axisEdit_RangeAxisSpec3DXScaleFact_1Text, m.getXSizeFactor());
    bindProportion(m_form.axisEdit_RangeAxisSpec3DYScaleFact_1Text, m.getYSizeFactor());
    bindProportion(m_form.axisEdit_RangeAxisSpec3DZScaleFact_1Text, m.getZSizeFactor());
    m_bindings.bindAction(m_form.axisEdit_RangeAxisSpec3DResetScaleFacts_Button,
                          [this] { on_axisEdit_RangeAxisSpec3DResetScaleFacts_Button_clicked(); });

    m_bindings.bindText(m_form.axisEdit_RangeAxisSpecThetaMode_Label, m.getThetaMode());
    m_bindings.bindField(m_form.axisEdit_RangeAxisSpecThetaPeriod_1Text, m.getThetaPeriod());
    m_bindings.bindLabel(m_form.axisEdit_RangeAxisSpecThetaPeriod_Label, m.getThetaPeriod());
    m_bindings.bindField(m_form.axisEdit_RangeAxisSpecThetaValueOnCircleRight_1Text, m.getThetaValueOnCircleRight());
    m_bindings.bindAction(m_form.axisEdit_RangeAxisSpecThetaReset_Button,
                          [this] { on_axisEdit_RangeAxisSpecThetaReset_Button_clicked(); });
    m_bindings.bindField(m_form.axisEdit_RangeAxisSpecROrigin_1Text, m.getROrigin());
}

/// Ratios and size factors step by a part of what they are, because each stands for a proportion.
void AxisEditRangePage::bindProportion(common::QScientificSpinBox* spinBox, UIStylePropertyAbstract<double>& property)
{
    using Calculator = SpinBoxIncDecCalculatorPercentage;
    m_bindings.bindSpinBox(spinBox, property,
                           boost::make_shared<Calculator>(ProportionStepPercent, spinBox->decimals()));
}

void AxisEditRangePage::bindRelevanciesToControls()
{
    auto& m = m_manager;
    auto const allowed = m.dependentAxesAllowedRelevance();
    m_bindings.apply(allowed,
                     {m_form.axisEdit_RangeAxisSpec2DDependent_RadioButton,
                      m_form.axisEdit_RangeAxisSpec3DXY_RadioButton, m_form.axisEdit_RangeAxisSpec3DXYZ_RadioButton});
    m_bindings.apply(RelevanceExpression(allowed).aand(m.xyDependentRelevance()),
                     {m_form.axisEdit_RangeAxisSpec2DRatio_Label, m_form.axisEdit_RangeAxisSpec2DRatio_1Text,
                      m_form.axisEdit_RangeAxisSpec3DXYRatio_Label, m_form.axisEdit_RangeAxisSpec3DXYRatio_1Text});
    m_bindings.apply(RelevanceExpression(allowed).aand(m.xyzDependentRelevance()),
                     {m_form.axisEdit_RangeAxisSpec3DXZRatio_Label, m_form.axisEdit_RangeAxisSpec3DXZRatio_1Text});

    m_bindings.apply(m.ySizeRelevance(), {m_form.axisEdit_RangeAxisSpec3DYScaleFact_Label,
                                          m_form.axisEdit_RangeAxisSpec3DYScaleFact_1Text});
    m_bindings.apply(m.zSizeRelevance(), {m_form.axisEdit_RangeAxisSpec3DZScaleFact_Label,
                                          m_form.axisEdit_RangeAxisSpec3DZScaleFact_1Text});

    m_bindings.apply(m.flatRelevance(), {m_form.axisEdit_RangePreserveLength_ToggleButton});
    m_bindings.show(m.logScaleRelevance(), {m_form.axisEdit_RangeLogScale_ToggleButton});
    m_bindings.show(m.polarRelevance(), {m_form.axisEdit_RangePolarClipToAxis_ToggleButton});
    m_bindings.show(m.autoAdjustRelevance(), {m_form.axisEdit_RangeAutoAdjustToNiceValues_ToggleButton});
    m_bindings.show(m.flatDependencyRelevance(), {m_form.axisEdit_RangeAxisSpec2D_Form});
    m_bindings.show(m.threeDRelevance(), {m_form.axisEdit_RangeAxisSpec3D_Form});
    m_bindings.show(m.thetaRelevance(), {m_form.axisEdit_RangeAxisSpecTheta_Form});
    m_bindings.show(m.rRelevance(), {m_form.axisEdit_RangeAxisSpecR_Form});
}

void AxisEditRangePage::axisEdit_RangeReset_Button_clicked()
{
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    startMenu(*m_form.axisEdit_RangeReset_Button);
    if (plotType == PlotType_PolarLine) {
        addReset(QMenu::tr("Reset to entire circle"), Manager::ResetToEntireCircle);
    }
    addReset(QMenu::tr("Reset to nice values"), Manager::ResetToNiceValues);
    addReset(QMenu::tr("Reset to variable min/max"), Manager::ResetToVariableMinMax);
    if (plotType == PlotType_Cartesian3D || plotType == PlotType_Cartesian2D) {
        addReset(QMenu::tr("Reset to non-blanked variable min/max"), Manager::ResetToNonBlankedMinMax)
            ->setEnabled(VtxUtilBlankingIsActive());
    }
    addReset(QMenu::tr("Make current values nice"), Manager::MakeCurrentValuesNice);
    popUpMenu();
}

void AxisEditRangePage::on_axisEdit_RangeAxisSpecThetaReset_Button_clicked()
{
    startMenu(*m_form.axisEdit_RangeAxisSpecThetaReset_Button);
    addReset(QMenu::tr("0 to 360 Degrees"), Manager::Zero360Degrees);
    addReset(QMenu::tr("-180 to 180 Degrees"), Manager::Minus180To180Degrees);
    addReset(QMenu::tr("0 to 2Pi Radians"), Manager::ZeroToTwoPiRadians);
    addReset(QMenu::tr("-Pi to Pi Radians"), Manager::MinusPiToPiRadians);
    addReset(QMenu::tr("Fit to Var Min/Max"), Manager::FitToVariableMinMax);
    popUpMenu();
}

void AxisEditRangePage::on_axisEdit_RangeAxisSpec3DResetScaleFacts_Button_clicked()
{
    m_manager.reset3DScaleFactors();
}

void AxisEditRangePage::startMenu(QWidget& button)
{
    delete m_menu;
    m_menu = new QMenu(&button);
}

QAction* AxisEditRangePage::addReset(QString const& text, ResetRange_e reset)
{
    return m_menu->addAction(text, [this, reset] { m_manager.resetRange(reset); });
}

void AxisEditRangePage::addReset(QString const& text, ThetaResetMode_e mode)
{
    m_menu->addAction(text, [this, mode] { m_manager.resetThetaMode(mode); });
}

void AxisEditRangePage::popUpMenu()
{
    QWidget const* const button = m_menu->parentWidget();
    m_menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

} // namespace vantrix::sdk::ui::dialogs
