#include "sdk/AppLock.h"

#include "api/VtxUtilState.h"

namespace vantrix::sdk {

AppLock::AppLock(bool record)
{
    VtxUtilLockStart(record);
}

AppLock::~AppLock()
{
    VtxUtilLockFinish();
}

} // namespace vantrix::sdk
