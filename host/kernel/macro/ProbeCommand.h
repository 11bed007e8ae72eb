#pragma once

#include "kernel/ProbeService.h"
#include "kernel/macro/MacroCommand.h"

namespace vantrix::kernel {

/* What was probed as a command that probes it again. The request is one that ProbeService keeps. */
MacroCommand probeCommand(const ProbeRequest& request);

} // namespace vantrix::kernel
