#include "dialogs/axis/AxisEditLabelPage.h"

#include "dialogs/StyleChoices.h"
#include "propertymanager/managers/PropertyRelevance.h"
#include "ui_AxisEditDialog.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertymanager;

namespace {

using Labels = TicklabelPropertiesGenerated;
using TextShape = TextShapePropertiesGenerated;

choices::List<LabelAlignment_e> alignments()
{
    using Model = propertybindings::models::PremappedListModel<LabelAlignment_e>;
    return boost::make_shared<Model const>(Model::Rows{{"By angle", LabelAlignment_ByAngle},
                                                       {"Along axis", LabelAlignment_AlongAxis},
                                                       {"Perpendicular to axis", LabelAlignment_Perpendicular}});
}

choices::List<NumberFormat_e> formats()
{
    using Model = propertybindings::models::PremappedListModel<NumberFormat_e>;
    return boost::make_shared<Model const>(Model::Rows{{"Best for the range", NumberFormat_RangeBestFloat},
                                                       {"Best float", NumberFormat_BestFloat},
                                                       {"Integer", NumberFormat_Integer},
                                                       {"Fixed float", NumberFormat_FixedFloat},
                                                       {"Exponential", NumberFormat_Exponential},
                                                       {"Superscript", NumberFormat_SuperScript},
                                                       {"Time/date", NumberFormat_TimeDate}});
}

/// Relevant while numbers are written with a given number of decimals.
boost::shared_ptr<RelevanceInterface const>
whilePrecisionCounts(boost::shared_ptr<PropertyAbstract<NumberFormat_e>> const& format)
{
    auto relevance = boost::make_shared<PropertyDependentRelevance<NumberFormat_e>>(format, NumberFormat_FixedFloat);
    relevance->addRelevantValue(NumberFormat_Exponential);
    relevance->addRelevantValue(NumberFormat_SuperScript);
    return relevance;
}

} // namespace

AxisEditLabelPage::AxisEditLabelPage(QWidget& /*parent*/, Ui::AxisEdit& form, AxisEditProperties& properties)
    : m_form(form)
    , m_manager(properties)
{
    createBindings();
    bindRelevanciesToControls();
}

void AxisEditLabelPage::createBindings()
{
    auto& m = m_manager;
    m_bindings.bindCheck(m_form.axisEdit_LabelShowOnAxisLine_ToggleButton, m.labels(&Labels::getShowOnAxisLine));
    m_bindings.bindCheck(m_form.axisEdit_LabelShowOnGridBorderMin_ToggleButton,
                         m.labels(&Labels::getShowOnGridBorderMin));
    m_bindings.bindCheck(m_form.axisEdit_LabelShowOnGridBorderMax_ToggleButton,
                         m.labels(&Labels::getShowOnGridBorderMax));
    m_bindings.bindCheck(m_form.axisEdit_LabelShowOnOppositeEdge_ToggleButton,
                         m.labels(&Labels::getShowOnOppositeEdge));
    m_bindings.bindCheck(m_form.axisEdit_LabelShowOnAllAxes_ToggleButton, m.labels(&Labels::getShowOnAllAxes));

    m_bindings.bindColor(m_form.axisEdit_LabelColor_ColorButton, m.labels(&Labels::getColor));
    m_bindings.bindList(m_form.axisEdit_LabelFont_ComboBox, m.textShape(&TextShape::getFont), choices::fonts());
    m_bindings.bindField(m_form.axisEdit_LabelSize_1Text, m.textShape(&TextShape::getHeight));
    m_bindings.bindList(m_form.axisEdit_LabelSizeUnits_ComboBox, m.textShape(&TextShape::getSizeUnits),
                        choices::textSizeUnits());

    m_bindings.bindList(m_form.axisEdit_LabelFormat_ComboBox, m.labels(&Labels::getNumberFormat), formats());
    m_bindings.bindSpinBox(m_form.axisEdit_LabelPrecision_SpinBox, m.labels(&Labels::getPrecision));
    m_bindings.bindField(m_form.axisEdit_LabelTimeDate_1Text, m.labels(&Labels::getTimeDateFormat));

    m_bindings.bindList(m_form.axisEdit_LabelAlignment_ComboBox, m.labels(&Labels::getLabelAlignment), alignments());
    m_bindings.bindField(m_form.axisEdit_LabelAngle_1Text, m.labels(&Labels::getAngle));
    m_bindings.bindField(m_form.axisEdit_LabelOffset_1Text, m.labels(&Labels::getOffset));
    m_bindings.bindSpinBox(m_form.axisEdit_LabelSkip_SpinBox, m.labels(&Labels::getSkip));
    m_bindings.bindCheck(m_form.axisEdit_LabelErase_ToggleButton, m.labels(&Labels::getEraseBehindLabels));
    m_bindings.bindCheck(m_form.axisEdit_LabelAtIntersection_ToggleButton,
                         m.labels(&Labels::getShowAtAxisIntersection));
}

void AxisEditLabelPage::bindRelevanciesToControls()
{
    auto& m = m_manager;
    m_bindings.apply(whileEqual(m.labels(&Labels::getLabelAlignment), LabelAlignment_ByAngle,
                                "Labels are not turned by an angle of their own."),
                     {m_form.axisEdit_LabelAngle_Label, m_form.axisEdit_LabelAngle_1Text});
    auto const format = m.labels(&Labels::getNumberFormat);
    m_bindings.apply(whilePrecisionCounts(format),
                     {m_form.axisEdit_LabelPrecision_Label, m_form.axisEdit_LabelPrecision_SpinBox});
    m_bindings.apply(whileEqual(format, NumberFormat_TimeDate, "Numbers are not shown as time or date."),
                     {m_form.axisEdit_LabelTimeDate_Label, m_form.axisEdit_LabelTimeDate_1Text});
    m_bindings.show(m.gridBorderRelevance(), {m_form.axisEdit_LabelShowOnGridBorderMin_ToggleButton,
                                              m_form.axisEdit_LabelShowOnGridBorderMax_ToggleButton});
    m_bindings.show(m.oppositeEdgeRelevance(), {m_form.axisEdit_LabelShowOnOppositeEdge_ToggleButton});
    m_bindings.show(m.allAxesRelevance(), {m_form.axisEdit_LabelShowOnAllAxes_ToggleButton});
}

} // namespace vantrix::sdk::ui::dialogs
