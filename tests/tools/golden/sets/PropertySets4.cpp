/* Written from style/ by tools/generate_style.py. Do not edit. */
#include "propertymanager/generated/AxisPropertiesGenerated.h"
#include "propertymanager/generated/ThickLinePropertiesGenerated.h"

namespace vantrix::sdk::ui::propertymanager {

} // namespace vantrix::sdk::ui::propertymanager
