#include "propertymanager/UIKernelStyleProperty.h"
#include "propertymanager/UILocalStyleProperty.h"
#include "propertymanager/UIStylePropertyProxy.h"

namespace vantrix::sdk::ui::propertymanager {

#define VX_INSTANTIATE(T)                                                                                              \
    template class UIStylePropertyAbstract<T>;                                                                         \
    template class UIStylePropertyWithRelevances<T>;                                                                   \
    template class UILocalStyleProperty<T>;                                                                            \
    template class UIKernelStyleProperty<T>;                                                                           \
    template class UIStylePropertyProxy<T>;
VX_UI_PROPERTY_TYPES(VX_INSTANTIATE)
#undef VX_INSTANTIATE

} // namespace vantrix::sdk::ui::propertymanager
