#include "ui/SpinBoxIntPropertyBinding.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

SpinBoxIntPropertyBinding::SpinBoxIntPropertyBinding(QSpinBox* spinBox,
                                                     boost::shared_ptr<PropertyAbstract<int>> property,
                                                     WidgetUpdateMode_e updateMode)
    : SpinBoxPropertyBindingAbstract(spinBox, std::move(property), updateMode)
{}

SpinBoxIntPropertyBinding::SpinBoxIntPropertyBinding(QSpinBox* spinBox,
                                                     propertymanager::UIStylePropertyAbstract<int>& property,
                                                     WidgetUpdateMode_e updateMode)
    : SpinBoxPropertyBindingAbstract(spinBox, property, updateMode)
{}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
