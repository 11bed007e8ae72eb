#include "api/VtxUtilLineMap.h"

#include "kernel/interface/Boundary.h"

using namespace vantrix::kernel;

/* Frames have no line maps yet. */
long VtxUtilLineMapGetCount(void)
{
    return 0;
}

bool VtxUtilLineMapGetName(long lineMap, char** name)
{
    *name = nullptr;
    return boundary::guarded(
        false, [&] { return boundary::fail("There is no line map " + std::to_string(lineMap) + " in this frame."); });
}
