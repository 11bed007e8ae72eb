#pragma once

#include <vector>

namespace vantrix::toolbox {

/// Plain values one behind the other, as the host functions take them: `data()` and `size()`.
template<typename T>
using RawArray = std::vector<T>;

} // namespace vantrix::toolbox
