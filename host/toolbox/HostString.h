#pragma once

#include "api/VtxUtilBase.h"

#include <string>

namespace vantrix::toolbox {

/// The text of a string that the host handed out, which is released; empty for null.
inline std::string takeHostString(char* hostString)
{
    std::string text = hostString != nullptr ? hostString : "";
    VtxUtilStringDealloc(&hostString);
    return text;
}

} // namespace vantrix::toolbox
