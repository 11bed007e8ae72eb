#include "propertymanager/managers/frame/PrintRenderOptsPropertiesManager.h"

#include "propertymanager/managers/PropertySetSubmission.h"
#include "sdk/DataQueries.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

PrintRenderOptsPropertiesManager::PrintRenderOptsPropertiesManager()
    : m_properties(true, {"Print"})
{}

boost::shared_ptr<RelevanceInterface const> PrintRenderOptsPropertiesManager::relevance()
{
    static auto const relevance =
        boost::make_shared<StateChangeDependentRelevance const>(&pageIsAvailable, "There is no page to print.");
    return relevance;
}

bool PrintRenderOptsPropertiesManager::submit()
{
    return submitAsStep(m_properties, "Print Render Options");
}

} // namespace vantrix::sdk::ui::propertymanager
