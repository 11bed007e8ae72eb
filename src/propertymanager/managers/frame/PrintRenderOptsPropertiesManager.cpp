#include "propertymanager/managers/frame/PrintRenderOptsPropertiesManager.h"

#include "propertymanager/managers/PropertySetSubmission.h"

namespace vantrix::sdk::ui::propertymanager {

PrintRenderOptsPropertiesManager::PrintRenderOptsPropertiesManager()
    : m_properties(true, {"Print"})
{}

bool PrintRenderOptsPropertiesManager::submit()
{
    return submitAsStep(m_properties, "Print Render Options");
}

} // namespace vantrix::sdk::ui::propertymanager
