#pragma once

#include "api/VtxUtilBase.h"
#include "toolbox/HostString.h"

#include <string>

/// The text of the last failure of a function of the interface.
inline std::string lastError()
{
    return vantrix::toolbox::takeHostString(VtxUtilGetLastErrorString());
}
