#include "dialogs/axis/AxisEditGridPage.h"

#include "dialogs/StyleChoices.h"
#include "propertymanager/managers/PropertyRelevance.h"
#include "ui/relevance/LinePatternDependentRelevance.h"
#include "ui/relevance/RelevanceExpression.h"
#include "ui_AxisEditDialog.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertymanager;

namespace {

using Lines = GridLinesPropertiesGenerated;
using Dots = PreciseGridPropertiesGenerated;
using Relevance = boost::shared_ptr<RelevanceInterface const>;

Relevance whilePatternRepeats(Relevance const& shown, boost::shared_ptr<PropertyAbstract<LinePattern_e>> const& pattern)
{
    return RelevanceExpression(shown).aand(boost::make_shared<LinePatternDependentRelevance const>(pattern));
}

} // namespace

AxisEditGridPage::AxisEditGridPage(QWidget& /*parent*/, Ui::AxisEdit& form, AxisEditProperties& properties)
    : m_form(form)
    , m_manager(properties)
{
    createBindings();
    bindRelevanciesToControls();
}

void AxisEditGridPage::createBindings()
{
    auto& m = m_manager;
    m_bindings.bindCheck(m_form.axisEdit_GridShow_ToggleButton, m.gridLines(&Lines::getShow));
    m_bindings.bindCheck(m_form.axisEdit_GridDrawLast_ToggleButton, m.gridLines(&Lines::getDrawgridlast));
    m_bindings.bindColor(m_form.axisEdit_GridColor_ColorButton, m.gridLines(&Lines::getColor));
    m_bindings.bindList(m_form.axisEdit_GridLinePattern_ComboBox, m.gridLines(&Lines::getLinepattern),
                        choices::linePatterns());
    m_bindings.bindList(m_form.axisEdit_GridPatternLength_ComboBox, m.gridLines(&Lines::getPatternlength),
                        choices::patternLengths());
    m_bindings.bindList(m_form.axisEdit_GridLineThickness_ComboBox, m.gridLines(&Lines::getLinethickness),
                        choices::lineThicknesses());
    m_bindings.bindField(m_form.axisEdit_GridCutoff_1Text, m.gridLines(&Lines::getCutoff));

    m_bindings.bindCheck(m_form.axisEdit_MinorGridShow_ToggleButton, m.minorGridLines(&Lines::getShow));
    m_bindings.bindCheck(m_form.axisEdit_MinorGridDrawLast_ToggleButton, m.minorGridLines(&Lines::getDrawgridlast));
    m_bindings.bindColor(m_form.axisEdit_MinorGridColor_ColorButton, m.minorGridLines(&Lines::getColor));
    m_bindings.bindList(m_form.axisEdit_MinorGridLinePattern_ComboBox, m.minorGridLines(&Lines::getLinepattern),
                        choices::linePatterns());
    m_bindings.bindList(m_form.axisEdit_MinorGridPatternLength_ComboBox, m.minorGridLines(&Lines::getPatternlength),
                        choices::patternLengths());
    m_bindings.bindList(m_form.axisEdit_MinorGridLineThickness_ComboBox, m.minorGridLines(&Lines::getLinethickness),
                        choices::lineThicknesses());
    m_bindings.bindField(m_form.axisEdit_MinorGridCutoff_1Text, m.minorGridLines(&Lines::getCutoff));

    m_bindings.bindCheck(m_form.axisEdit_PreciseGridShow_ToggleButton, m.preciseGrid(&Dots::getInclude));
    m_bindings.bindColor(m_form.axisEdit_PreciseGridColor_ColorButton, m.preciseGrid(&Dots::getColor));
    m_bindings.bindField(m_form.axisEdit_PreciseGridSize_1Text, m.preciseGrid(&Dots::getSize));
}

void AxisEditGridPage::bindRelevanciesToControls()
{
    auto& m = m_manager;
    auto const lines = whileSet(m.gridLines(&Lines::getShow), "Gridlines are not shown.");
    auto const minorLines = whileSet(m.minorGridLines(&Lines::getShow), "Minor gridlines are not shown.");
    auto const dots = whileSet(m.preciseGrid(&Dots::getInclude), "There is no precise dot grid.");

    m_bindings.apply(lines, {m_form.axisEdit_GridDrawLast_ToggleButton, m_form.axisEdit_GridColor_Label,
                             m_form.axisEdit_GridColor_ColorButton, m_form.axisEdit_GridLinePattern_Label,
                             m_form.axisEdit_GridLinePattern_ComboBox, m_form.axisEdit_GridLineThickness_Label,
                             m_form.axisEdit_GridLineThickness_ComboBox, m_form.axisEdit_GridCutoff_Label,
                             m_form.axisEdit_GridCutoff_1Text});
    m_bindings.apply(whilePatternRepeats(lines, m.gridLines(&Lines::getLinepattern)),
                     {m_form.axisEdit_GridPatternLength_Label, m_form.axisEdit_GridPatternLength_ComboBox});
    m_bindings.apply(minorLines,
                     {m_form.axisEdit_MinorGridDrawLast_ToggleButton, m_form.axisEdit_MinorGridColor_Label,
                      m_form.axisEdit_MinorGridColor_ColorButton, m_form.axisEdit_MinorGridLinePattern_Label,
                      m_form.axisEdit_MinorGridLinePattern_ComboBox, m_form.axisEdit_MinorGridLineThickness_Label,
                      m_form.axisEdit_MinorGridLineThickness_ComboBox, m_form.axisEdit_MinorGridCutoff_Label,
                      m_form.axisEdit_MinorGridCutoff_1Text});
    m_bindings.apply(whilePatternRepeats(minorLines, m.minorGridLines(&Lines::getLinepattern)),
                     {m_form.axisEdit_MinorGridPatternLength_Label, m_form.axisEdit_MinorGridPatternLength_ComboBox});
    m_bindings.apply(dots, {m_form.axisEdit_PreciseGridColor_Label, m_form.axisEdit_PreciseGridColor_ColorButton,
                            m_form.axisEdit_PreciseGridSize_Label, m_form.axisEdit_PreciseGridSize_1Text});

    m_bindings.show(m.cutoffRelevance(),
                    {m_form.axisEdit_GridCutoff_Label, m_form.axisEdit_GridCutoff_1Text,
                     m_form.axisEdit_MinorGridCutoff_Label, m_form.axisEdit_MinorGridCutoff_1Text});
    m_bindings.show(m.preciseGridRelevance(), {m_form.axisEdit_PreciseGrid_GroupBox});
}

} // namespace vantrix::sdk::ui::dialogs
