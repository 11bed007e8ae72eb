#include "propertymanager/managers/PropertySetSubmission.h"

#include "api/VtxUtil.h"
#include "property/InvalidPropertyValueException.h"
#include "propertymanager/generated/UIKernelStylePropertiesInterface.h"
#include "sdk/AppLock.h"

namespace vantrix::sdk::ui::propertymanager {

bool submitAsStep(UIKernelStylePropertiesInterface& set, char const* stepName)
{
    std::string refusal;
    {
        AppLock const lock;
        VtxUtilUndoSetStepName(stepName);
        try {
            set.submit();
            return true;
        } catch (InvalidPropertyValueException const& exception) {
            refusal = exception.message();
        }
    }
    // The user reads the message after the host has taken everything back and the lock is off.
    VtxUtilDialogMessageBox(refusal.c_str(), MessageBox_Error);
    return false;
}

} // namespace vantrix::sdk::ui::propertymanager
