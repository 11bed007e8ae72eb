#include "dialogs/axis/AxisEditLinePage.h"

#include "dialogs/StyleChoices.h"
#include "propertymanager/managers/PropertyRelevance.h"
#include "ui_AxisEditDialog.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertymanager;

namespace {

using Line = AxisLinePropertiesGenerated;

choices::List<int> edges()
{
    using Model = propertybindings::models::PremappedListModel<int>;
    return boost::make_shared<Model const>(
        Model::Rows{{"Automatic", 0}, {"Edge 1", 1}, {"Edge 2", 2}, {"Edge 3", 3}, {"Edge 4", 4}});
}

} // namespace

AxisEditLinePage::AxisEditLinePage(QWidget& /*parent*/, Ui::AxisEdit& form, AxisEditProperties& properties)
    : m_form(form)
    , m_manager(properties)
{
    createBindings();
    bindRelevanciesToControls();
}

void AxisEditLinePage::createBindings()
{
    auto& m = m_manager;
    m_bindings.bindCheck(m_form.axisEdit_LineShow_ToggleButton, m.axisLine(&Line::getShow));
    m_bindings.bindColor(m_form.axisEdit_LineColor_ColorButton, m.axisLine(&Line::getColor));
    m_bindings.bindList(m_form.axisEdit_LineThickness_ComboBox, m.axisLine(&Line::getLineThickness),
                        choices::lineThicknesses());
    m_bindings.bindCheck(m_form.axisEdit_LineBothDirections_ToggleButton, m.axisLine(&Line::getShowBothDirections));
    m_bindings.bindCheck(m_form.axisEdit_LinePerpendicular_ToggleButton, m.axisLine(&Line::getShowPerpendicular));

    m_bindings.bindList(m_form.axisEdit_LineAlignment_ComboBox, m.axisLine(&Line::getAxisAlignment),
                        m.alignmentModel());
    m_bindings.bindField(m_form.axisEdit_LineOpposingValue_1Text, m.axisLine(&Line::getOpposingAxisValue));
    m_bindings.bindField(m_form.axisEdit_LinePosition_1Text, m.axisLine(&Line::getPosition));
    m_bindings.bindField(m_form.axisEdit_LineAngle_1Text, m.axisLine(&Line::getAngle));
    m_bindings.bindField(m_form.axisEdit_LineOffset_1Text, m.axisLine(&Line::getOffset));

    m_bindings.bindList(m_form.axisEdit_LineEdge_ComboBox, m.axisLine(&Line::getEdge), edges());
    m_bindings.bindCheck(m_form.axisEdit_LineEdgeAutoReset_ToggleButton, m.edgeAutoReset());
    m_bindings.bindCheck(m_form.axisEdit_LineOppositeEdge_ToggleButton, m.axisLine(&Line::getShowOppositeEdge));
}

void AxisEditLinePage::bindRelevanciesToControls()
{
    auto& m = m_manager;
    auto const line = whileSet(m.axisLine(&Line::getShow), "The axis line is not shown.");
    auto const alignment = m.axisLine(&Line::getAxisAlignment);
    m_bindings.apply(line,
                     {m_form.axisEdit_LineColor_Label, m_form.axisEdit_LineColor_ColorButton,
                      m_form.axisEdit_LineThickness_Label, m_form.axisEdit_LineThickness_ComboBox,
                      m_form.axisEdit_LineBothDirections_ToggleButton, m_form.axisEdit_LinePerpendicular_ToggleButton,
                      m_form.axisEdit_LineOppositeEdge_ToggleButton});
    m_bindings.apply(whileEqual(alignment, AxisAlignment_OpposingAxisValue,
                                "The axis is not aligned with a value of the opposing axis."),
                     {m_form.axisEdit_LineOpposingValue_Label, m_form.axisEdit_LineOpposingValue_1Text});
    m_bindings.apply(whileEqual(alignment, AxisAlignment_Viewport, "The axis is not aligned with the viewport."),
                     {m_form.axisEdit_LinePosition_Label, m_form.axisEdit_LinePosition_1Text});
    m_bindings.apply(whileEqual(alignment, AxisAlignment_SpecificAngle, "The axis is not aligned with an angle."),
                     {m_form.axisEdit_LineAngle_Label, m_form.axisEdit_LineAngle_1Text});

    m_bindings.show(m.flatRelevance(), {m_form.axisEdit_LinePlacement_GroupBox});
    m_bindings.show(m.cartesianRelevance(), {m_form.axisEdit_LinePosition_Label, m_form.axisEdit_LinePosition_1Text});
    m_bindings.show(m.rRelevance(),
                    {m_form.axisEdit_LineAngle_Label, m_form.axisEdit_LineAngle_1Text,
                     m_form.axisEdit_LineBothDirections_ToggleButton, m_form.axisEdit_LinePerpendicular_ToggleButton});
    m_bindings.show(m.threeDRelevance(), {m_form.axisEdit_LineEdge_GroupBox});
}

} // namespace vantrix::sdk::ui::dialogs
