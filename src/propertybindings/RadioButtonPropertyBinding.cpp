#include "propertybindings/RadioButtonPropertyBindingImpl.h"

#include <QButtonGroup>

namespace vantrix::sdk::ui::dialogs::propertybindings {

void uncheck(QAbstractButton& button)
{
    if (!button.isChecked()) {
        return;
    }
    if (QButtonGroup* group = button.group(); group && group->exclusive()) {
        group->setExclusive(false);
        button.setChecked(false);
        group->setExclusive(true);
    } else {
        bool const isExclusive = button.autoExclusive();
        button.setAutoExclusive(false);
        button.setChecked(false);
        button.setAutoExclusive(isExclusive);
    }
}

#define VX_INSTANTIATE_RADIOBUTTON_BINDING(Type) template class RadioButtonPropertyBinding<Type>;
VX_FOR_EACH_LISTED_TYPE(VX_INSTANTIATE_RADIOBUTTON_BINDING)
#undef VX_INSTANTIATE_RADIOBUTTON_BINDING

} // namespace vantrix::sdk::ui::dialogs::propertybindings
