#include "propertymanager/managers/frame/PrintRenderOptsPropertiesManager.h"

#include "propertymanager/PropertyDependentRelevance.h"
#include "propertymanager/managers/PropertySetSubmission.h"

namespace vantrix::sdk::ui::propertymanager {

PrintRenderOptsPropertiesManager::PrintRenderOptsPropertiesManager()
    : m_properties(true, {"Print"})
    , m_vectorRelevance(boost::make_shared<PropertyDependentRelevance<PrintRenderType_e>>(m_properties.getRenderType(),
                                                                                          PrintRenderType_Vector))
{}

bool PrintRenderOptsPropertiesManager::submit()
{
    return submitAsStep(m_properties, "Print Render Options");
}

} // namespace vantrix::sdk::ui::propertymanager
