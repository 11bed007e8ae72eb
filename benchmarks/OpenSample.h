#pragma once

#include "kernel/Kernel.h"
#include "kernel/OpenData.h"

/// The kernel as new, with the sample that the benchmarks of dialogs work on.
inline void openSample()
{
    vantrix::kernel::Kernel::instance().reset();
    vantrix::kernel::OpenData(vantrix::kernel::Kernel::instance()).sample("flow3d");
}
