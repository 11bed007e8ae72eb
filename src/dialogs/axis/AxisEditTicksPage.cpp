#include "dialogs/axis/AxisEditTicksPage.h"

#include "dialogs/StyleChoices.h"
#include "propertymanager/SpinBoxIncDecCalculatorPercentage.h"
#include "propertymanager/managers/PropertyRelevance.h"
#include "ui/relevance/InvertingRelevance.h"
#include "ui_AxisEditDialog.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertymanager;

namespace {

using Axis = AxisDetailPropertiesGenerated;
using Ticks = TicksPropertiesGenerated;

constexpr double SpacingStepPercent = 10.0;

} // namespace

AxisEditTicksPage::AxisEditTicksPage(QWidget& /*parent*/, Ui::AxisEdit& form, AxisEditProperties& properties)
    : m_form(form)
    , m_manager(properties)
{
    createBindings();
    bindRelevanciesToControls();
}

void AxisEditTicksPage::createBindings()
{
    auto& m = m_manager;
    auto* const spacing = m_form.axisEdit_TicksSpacing_1Text;
    m_bindings.bindCheck(m_form.axisEdit_TicksAutoSpacing_ToggleButton, m.autoSpacing());
    m_bindings.bindSpinBox(
        spacing, m.spacing(),
        boost::make_shared<SpinBoxIncDecCalculatorPercentage>(SpacingStepPercent, spacing->decimals()));
    m_bindings.bindField(m_form.axisEdit_TicksAnchor_1Text, m.axis(&Axis::getGrAnchor));

    m_bindings.bindCheck(m_form.axisEdit_TicksShowOnAxisLine_ToggleButton, m.ticks(&Ticks::getShowOnAxisLine));
    m_bindings.bindCheck(m_form.axisEdit_TicksShowOnGridBorderMin_ToggleButton,
                         m.ticks(&Ticks::getShowOnGridBorderMin));
    m_bindings.bindCheck(m_form.axisEdit_TicksShowOnGridBorderMax_ToggleButton,
                         m.ticks(&Ticks::getShowOnGridBorderMax));
    m_bindings.bindCheck(m_form.axisEdit_TicksShowOnOppositeEdge_ToggleButton, m.ticks(&Ticks::getShowOnOppositeEdge));
    m_bindings.bindCheck(m_form.axisEdit_TicksShowOnAllAxes_ToggleButton, m.ticks(&Ticks::getShowOnAllAxes));

    auto const direction = m.ticks(&Ticks::getTickdirection);
    m_bindings.bindChoice(m_form.axisEdit_TicksDirectionIn_RadioButton, direction, TickDirection_In);
    m_bindings.bindChoice(m_form.axisEdit_TicksDirectionOut_RadioButton, direction, TickDirection_Out);
    m_bindings.bindChoice(m_form.axisEdit_TicksDirectionCentered_RadioButton, direction, TickDirection_Centered);
    m_bindings.bindList(m_form.axisEdit_TicksLength_ComboBox, m.ticks(&Ticks::getLength), choices::symbolSizes());
    m_bindings.bindList(m_form.axisEdit_TicksThickness_ComboBox, m.ticks(&Ticks::getLinethickness),
                        choices::lineThicknesses());
    m_bindings.bindSpinBox(m_form.axisEdit_MinorTicksCount_SpinBox, m.ticks(&Ticks::getNumminorticks));
    m_bindings.bindList(m_form.axisEdit_MinorTicksLength_ComboBox, m.ticks(&Ticks::getMinorlength),
                        choices::symbolSizes());
    m_bindings.bindList(m_form.axisEdit_MinorTicksThickness_ComboBox, m.ticks(&Ticks::getMinorlinethickness),
                        choices::lineThicknesses());
}

void AxisEditTicksPage::bindRelevanciesToControls()
{
    auto& m = m_manager;
    auto const isSpacingGiven = boost::make_shared<InvertingRelevance const>(whileSet(m.axis(&Axis::getAutoGrid), {}),
                                                                             "The plot chooses the spacing.");
    m_bindings.apply(isSpacingGiven, {m_form.axisEdit_TicksSpacing_Label, m_form.axisEdit_TicksSpacing_1Text,
                                      m_form.axisEdit_TicksAnchor_Label, m_form.axisEdit_TicksAnchor_1Text});
    auto const hasMinorTicks = boost::make_shared<InvertingRelevance const>(
        whileEqual(m.ticks(&Ticks::getNumminorticks), 0, {}), "There are no minor ticks.");
    m_bindings.apply(hasMinorTicks,
                     {m_form.axisEdit_MinorTicksLength_Label, m_form.axisEdit_MinorTicksLength_ComboBox,
                      m_form.axisEdit_MinorTicksThickness_Label, m_form.axisEdit_MinorTicksThickness_ComboBox});

    m_bindings.show(m.gridBorderRelevance(), {m_form.axisEdit_TicksShowOnGridBorderMin_ToggleButton,
                                              m_form.axisEdit_TicksShowOnGridBorderMax_ToggleButton});
    m_bindings.show(m.oppositeEdgeRelevance(), {m_form.axisEdit_TicksShowOnOppositeEdge_ToggleButton});
    m_bindings.show(m.allAxesRelevance(), {m_form.axisEdit_TicksShowOnAllAxes_ToggleButton});
}

} // namespace vantrix::sdk::ui::dialogs
