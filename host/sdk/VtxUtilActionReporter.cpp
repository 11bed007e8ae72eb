#include "sdk/VtxUtilActionReporter.h"

#include "api/VtxUtilDialog.h"

namespace vantrix::sdk {

void VtxUtilActionReporter::reportResult(bool result, std::string const& failureText,
                                         std::string const& successText) const
{
    if (!result) {
        VtxUtilDialogErrMsg(failureText.c_str());
    } else if (!successText.empty()) {
        VtxUtilStatusMessage(successText.c_str());
    }
}

} // namespace vantrix::sdk
