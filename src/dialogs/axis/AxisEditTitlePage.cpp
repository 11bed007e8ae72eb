#include "dialogs/axis/AxisEditTitlePage.h"

#include "dialogs/StyleChoices.h"
#include "propertymanager/managers/PropertyRelevance.h"
#include "ui/relevance/InvertingRelevance.h"
#include "ui_AxisEditDialog.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertymanager;

namespace {

using Title = TitlePropertiesGenerated;
using TextShape = TextShapePropertiesGenerated;

} // namespace

AxisEditTitlePage::AxisEditTitlePage(QWidget& /*parent*/, Ui::AxisEdit& form, AxisEditProperties& properties)
    : m_form(form)
    , m_manager(properties)
{
    createBindings();
    bindRelevanciesToControls();
}

void AxisEditTitlePage::createBindings()
{
    auto& m = m_manager;
    auto const mode = m.title(&Title::getTitleMode);
    m_bindings.bindChoice(m_form.axisEdit_TitleNone_RadioButton, mode, AxisTitleMode_None);
    m_bindings.bindChoice(m_form.axisEdit_TitleVariable_RadioButton, mode, AxisTitleMode_VariableName);
    m_bindings.bindChoice(m_form.axisEdit_TitleText_RadioButton, mode, AxisTitleMode_Text);
    m_bindings.bindField(m_form.axisEdit_TitleText_1Text, m.title(&Title::getText));

    m_bindings.bindCheck(m_form.axisEdit_TitleShowOnAxisLine_ToggleButton, m.title(&Title::getShowOnAxisLine));
    m_bindings.bindCheck(m_form.axisEdit_TitleShowOnGridBorderMin_ToggleButton,
                         m.title(&Title::getShowOnGridBorderMin));
    m_bindings.bindCheck(m_form.axisEdit_TitleShowOnGridBorderMax_ToggleButton,
                         m.title(&Title::getShowOnGridBorderMax));
    m_bindings.bindCheck(m_form.axisEdit_TitleShowOnOppositeEdge_ToggleButton, m.title(&Title::getShowOnOppositeEdge));
    m_bindings.bindCheck(m_form.axisEdit_TitleShowOnAllAxes_ToggleButton, m.title(&Title::getShowOnAllAxes));

    m_bindings.bindColor(m_form.axisEdit_TitleColor_ColorButton, m.title(&Title::getColor));
    m_bindings.bindList(m_form.axisEdit_TitleFont_ComboBox, m.textShape(&TextShape::getFont), choices::fonts());
    m_bindings.bindField(m_form.axisEdit_TitleSize_1Text, m.textShape(&TextShape::getHeight));
    m_bindings.bindList(m_form.axisEdit_TitleSizeUnits_ComboBox, m.textShape(&TextShape::getSizeUnits),
                        choices::textSizeUnits());

    m_bindings.bindField(m_form.axisEdit_TitleOffset_1Text, m.title(&Title::getOffset));
    m_bindings.bindField(m_form.axisEdit_TitlePosition_1Text, m.title(&Title::getPercentAlongLine));
}

void AxisEditTitlePage::bindRelevanciesToControls()
{
    auto& m = m_manager;
    auto const mode = m.title(&Title::getTitleMode);
    m_bindings.apply(whileEqual(mode, AxisTitleMode_Text, "The title is no text of its own."),
                     {m_form.axisEdit_TitleText_1Text});
    m_bindings.apply(boost::make_shared<InvertingRelevance const>(whileEqual(mode, AxisTitleMode_None, {}),
                                                                  "The axis has no title."),
                     {m_form.axisEdit_TitleShowOn_GroupBox, m_form.axisEdit_TitleText_GroupBox,
                      m_form.axisEdit_TitlePlacement_GroupBox});
    m_bindings.show(m.gridBorderRelevance(), {m_form.axisEdit_TitleShowOnGridBorderMin_ToggleButton,
                                              m_form.axisEdit_TitleShowOnGridBorderMax_ToggleButton});
    m_bindings.show(m.oppositeEdgeRelevance(), {m_form.axisEdit_TitleShowOnOppositeEdge_ToggleButton});
    m_bindings.show(m.allAxesRelevance(), {m_form.axisEdit_TitleShowOnAllAxes_ToggleButton});
}

} // namespace vantrix::sdk::ui::dialogs
