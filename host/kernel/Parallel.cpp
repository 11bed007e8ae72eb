#include "kernel/Parallel.h"

#include <vtkSMPTools.h>

namespace vantrix::kernel {

void parallelFor(long count, const std::function<void(long, long)>& work)
{
    vtkSMPTools::For(0, count, [&work](vtkIdType begin, vtkIdType end) { work(begin, end); });
}

} // namespace vantrix::kernel
