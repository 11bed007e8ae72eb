#include "dialogs/axis/AxisEditAreaPage.h"

#include "dialogs/StyleChoices.h"
#include "propertymanager/managers/PropertyRelevance.h"
#include "ui_AxisEditDialog.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertymanager;

namespace {

using GridArea = GridAreaPropertiesGenerated;
using Position = ViewportPositionPropertiesGenerated;
using ViewportStyle = ViewportStylePropertiesGenerated;

} // namespace

AxisEditAreaPage::AxisEditAreaPage(QWidget& /*parent*/, Ui::AxisEdit& form, AxisEditProperties& properties)
    : m_form(form)
    , m_manager(properties)
{
    createBindings();
    bindRelevanciesToControls();
}

void AxisEditAreaPage::createBindings()
{
    auto& m = m_manager;
    m_bindings.bindCheck(m_form.axisEdit_AreaFill_ToggleButton, m.gridArea(&GridArea::getIsfilled));
    m_bindings.bindColor(m_form.axisEdit_AreaFillColor_ColorButton, m.gridArea(&GridArea::getFillcolor));
    m_bindings.bindCheck(m_form.axisEdit_AreaLightSource_ToggleButton, m.gridArea(&GridArea::getUselightsourcetofill));
    m_bindings.bindCheck(m_form.axisEdit_AreaBorder_ToggleButton, m.gridArea(&GridArea::getDrawborder));
    m_bindings.bindColor(m_form.axisEdit_AreaBorderColor_ColorButton, m.gridAreaBorderColor());
    m_bindings.bindList(m_form.axisEdit_AreaBorderThickness_ComboBox, m.gridArea(&GridArea::getLinethickness),
                        choices::lineThicknesses());

    m_bindings.bindField(m_form.axisEdit_ViewportLeft_1Text, m.viewportPosition(&Position::getX1));
    m_bindings.bindField(m_form.axisEdit_ViewportRight_1Text, m.viewportPosition(&Position::getX2));
    m_bindings.bindField(m_form.axisEdit_ViewportBottom_1Text, m.viewportPosition(&Position::getY1));
    m_bindings.bindField(m_form.axisEdit_ViewportTop_1Text, m.viewportPosition(&Position::getY2));

    m_bindings.bindCheck(m_form.axisEdit_ViewportStyleFill_ToggleButton, m.viewportStyle(&ViewportStyle::getIsFilled));
    m_bindings.bindColor(m_form.axisEdit_ViewportStyleFillColor_ColorButton,
                         m.viewportStyle(&ViewportStyle::getFillColor));
    m_bindings.bindCheck(m_form.axisEdit_ViewportStyleBorder_ToggleButton,
                         m.viewportStyle(&ViewportStyle::getDrawBorder));
    m_bindings.bindColor(m_form.axisEdit_ViewportStyleBorderColor_ColorButton,
                         m.viewportStyle(&ViewportStyle::getColor));
    m_bindings.bindList(m_form.axisEdit_ViewportStyleBorderThickness_ComboBox,
                        m.viewportStyle(&ViewportStyle::getLineThickness), choices::lineThicknesses());

    m_bindings.bindField(m_form.axisEdit_AxisBoxPadding_1Text, m.axisBoxPadding());
}

void AxisEditAreaPage::bindRelevanciesToControls()
{
    auto& m = m_manager;
    m_bindings.apply(whileSet(m.gridArea(&GridArea::getIsfilled), "The area is not filled."),
                     {m_form.axisEdit_AreaFillColor_Label, m_form.axisEdit_AreaFillColor_ColorButton,
                      m_form.axisEdit_AreaLightSource_ToggleButton});
    m_bindings.apply(whileSet(m.gridArea(&GridArea::getDrawborder), "The area has no border."),
                     {m_form.axisEdit_AreaBorderColor_Label, m_form.axisEdit_AreaBorderColor_ColorButton,
                      m_form.axisEdit_AreaBorderThickness_Label, m_form.axisEdit_AreaBorderThickness_ComboBox});
    m_bindings.apply(
        whileSet(m.viewportStyle(&ViewportStyle::getIsFilled), "The viewport is not filled."),
        {m_form.axisEdit_ViewportStyleFillColor_Label, m_form.axisEdit_ViewportStyleFillColor_ColorButton});
    m_bindings.apply(
        whileSet(m.viewportStyle(&ViewportStyle::getDrawBorder), "The viewport has no border."),
        {m_form.axisEdit_ViewportStyleBorderColor_Label, m_form.axisEdit_ViewportStyleBorderColor_ColorButton,
         m_form.axisEdit_ViewportStyleBorderThickness_Label, m_form.axisEdit_ViewportStyleBorderThickness_ComboBox});

    m_bindings.show(m.flatRelevance(),
                    {m_form.axisEdit_AreaBorderColor_Label, m_form.axisEdit_AreaBorderColor_ColorButton,
                     m_form.axisEdit_Viewport_GroupBox});
    m_bindings.show(m.threeDRelevance(),
                    {m_form.axisEdit_AreaLightSource_ToggleButton, m_form.axisEdit_AxisBox_GroupBox});
    m_bindings.show(m.polarRelevance(), {m_form.axisEdit_ViewportStyle_GroupBox});
}

} // namespace vantrix::sdk::ui::dialogs
