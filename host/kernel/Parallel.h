#pragma once

#include <functional>

namespace vantrix::kernel {

/*
 * Calls `work(begin, end)` on ranges that together cover 0 to `count` once, on several threads where that pays (VTK's
 * thread pool). The work must not throw. Its source alone includes vtkSMPTools.h, which is no valid C++20.
 */
void parallelFor(long count, const std::function<void(long begin, long end)>& work);

} // namespace vantrix::kernel
