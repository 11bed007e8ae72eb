#include "styleproperties/KernelPropertyDeferred.h"

namespace vantrix {

#define VX_INSTANTIATE(T) template class PropertyAbstract<T>;
VX_KERNEL_PROPERTY_ENUMERATIONS(VX_INSTANTIATE)
#undef VX_INSTANTIATE

namespace sdk::styleproperties {

#define VX_INSTANTIATE(T)                                                                                              \
    template class KernelProperty<T>;                                                                                  \
    template class KernelPropertyDeferred<T>;
VX_KERNEL_PROPERTY_TYPES(VX_INSTANTIATE)
#undef VX_INSTANTIATE

} // namespace sdk::styleproperties

} // namespace vantrix
