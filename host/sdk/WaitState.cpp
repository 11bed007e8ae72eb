#include "sdk/WaitState.h"

#include "api/VtxUtilDialog.h"

namespace vantrix::sdk {

WaitState::WaitState()
{
    VtxUtilWaitBegin();
}

WaitState::~WaitState()
{
    VtxUtilWaitEnd();
}

} // namespace vantrix::sdk
