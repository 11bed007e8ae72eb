#include "sdk/CallGuarded.h"

#include "api/VtxUtilDialog.h"

namespace vantrix::sdk {

void showUncaught(std::exception_ptr const& exception) noexcept
{
    try {
        std::rethrow_exception(exception);
    } catch (std::exception const& known) {
        VtxUtilStatusMessage(known.what());
    } catch (...) {
        VtxUtilStatusMessage("Unknown error");
    }
}

} // namespace vantrix::sdk
