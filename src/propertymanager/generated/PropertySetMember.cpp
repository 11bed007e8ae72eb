#include "propertymanager/generated/PropertySetMember.h"

namespace vantrix::sdk::ui::propertymanager {

#define VX_INSTANTIATE(T) template class PropertySetMember<T>;
VX_KERNEL_PROPERTY_TYPES(VX_INSTANTIATE)
#undef VX_INSTANTIATE

} // namespace vantrix::sdk::ui::propertymanager
