#include "propertymanager/managers/frame/OptionsRulerGridPropertiesManager.h"

#include "propertymanager/PropertyDependentRelevance.h"
#include "propertymanager/managers/PropertySetSubmission.h"
#include "sdk/DataQueries.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

namespace {

using SpacingModel = OptionsRulerGridPropertiesManager::SpacingModel;

SpacingModel::Rows const rulerRows{{"0.5 cm", PaperUnitSpacing_HalfCentimeter},
                                   {"1 cm", PaperUnitSpacing_OneCentimeter},
                                   {"1 inch", PaperUnitSpacing_OneInch},
                                   {"10 points", PaperUnitSpacing_TenPoints},
                                   {"24 points", PaperUnitSpacing_TwentyFourPoints}};

SpacingModel::Rows const gridRows{
    {"0.5 cm", PaperUnitSpacing_HalfCentimeter},   {"1 cm", PaperUnitSpacing_OneCentimeter},
    {"1/16 inch", PaperUnitSpacing_SixteenthInch}, {"1/10 inch", PaperUnitSpacing_TenthInch},
    {"1/8 inch", PaperUnitSpacing_EighthInch},     {"1/4 inch", PaperUnitSpacing_QuarterInch},
    {"1/2 inch", PaperUnitSpacing_HalfInch},       {"1 inch", PaperUnitSpacing_OneInch},
    {"10 points", PaperUnitSpacing_TenPoints},     {"24 points", PaperUnitSpacing_TwentyFourPoints}};

} // namespace

OptionsRulerGridPropertiesManager::OptionsRulerGridPropertiesManager()
    : m_properties(true, {"Paper"})
    , m_rulerSpacingModel(boost::make_shared<SpacingModel const>(rulerRows))
    , m_gridSpacingModel(boost::make_shared<SpacingModel const>(gridRows))
    , m_showGridRelevance(boost::make_shared<PropertyDependentRelevance<bool>>(m_properties.showGrid(), true))
{}

bool OptionsRulerGridPropertiesManager::submit()
{
    return submitAsStep(m_properties, "Ruler and Grid Options");
}

OptionsRulerGridPropertiesManager::Relevance OptionsRulerGridPropertiesManager::relevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        &pageIsAvailable, "There is no page with rulers and a grid.");
    return relevance;
}

} // namespace vantrix::sdk::ui::propertymanager
