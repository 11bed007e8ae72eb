#include "propertymanager/managers/PropertySetSubmission.h"

#include "api/VtxUtil.h"
#include "propertymanager/generated/UIKernelStylePropertiesInterface.h"
#include "sdk/AppLock.h"

namespace vantrix::sdk::ui::propertymanager {

bool submitAsStep(UIKernelStylePropertiesInterface& set, char const* stepName)
{
    AppLock const lock;
    VtxUtilUndoSetStepName(stepName);
    set.submit();
    return true;
}

} // namespace vantrix::sdk::ui::propertymanager
