#include "sdk/VtxUtilActionReporter.h"

#include "api/VtxUtilBase.h"
#include "api/VtxUtilDialog.h"
#include "toolbox/HostString.h"

namespace vantrix::sdk {

void VtxUtilActionReporter::reportResult(bool result, std::string const& failureText,
                                         std::string const& successText) const
{
    if (!result) {
        reportFailure(failureText);
    } else if (!successText.empty()) {
        VtxUtilStatusMessage(successText.c_str());
    }
}

void VtxUtilActionReporter::reportLastFailure() const
{
    reportFailure(toolbox::takeHostString(VtxUtilGetLastErrorString()));
}

void VtxUtilActionReporter::reportFailure(std::string const& text) const
{
    if (VtxUtilLastErrorIsCancellation()) {
        VtxUtilStatusMessage(toolbox::takeHostString(VtxUtilGetLastErrorString()).c_str());
    } else {
        VtxUtilDialogErrMsg(text.c_str());
    }
}

} // namespace vantrix::sdk
