#include "propertybindings/RadioButtonPropertyBindingImpl.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

#define VX_INSTANTIATE_RADIOBUTTON_BINDING(Type) template class RadioButtonPropertyBinding<Type>;
VX_FOR_EACH_LISTED_TYPE(VX_INSTANTIATE_RADIOBUTTON_BINDING)
#undef VX_INSTANTIATE_RADIOBUTTON_BINDING

} // namespace vantrix::sdk::ui::dialogs::propertybindings
