#include "api/VtxUtilBase.h"

#include "kernel/interface/Boundary.h"

using namespace vantrix::kernel;

void VtxUtilStringDealloc(char** string)
{
    if (string) {
        std::free(*string);
        *string = nullptr;
    }
}

char* VtxUtilGetLastErrorString(void)
{
    return boundary::guarded<char*>(nullptr, [] { return boundary::copyStringOrNull(Kernel::instance().lastError()); });
}

bool VtxUtilLastErrorIsCancellation(void)
{
    return Kernel::instance().isLastErrorCancellation();
}
