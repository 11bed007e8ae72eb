#include "ui/SpinBoxLgIndexPropertyBinding.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

SpinBoxLgIndexPropertyBinding::SpinBoxLgIndexPropertyBinding(common::QLgIndexSpinBox* spinBox,
                                                             boost::shared_ptr<PropertyAbstract<long>> property,
                                                             WidgetUpdateMode_e updateMode,
                                                             common::QLgIndexSpinBox::StepCalculator stepCalculator)
    : SpinBoxPropertyBindingAbstract(spinBox, std::move(property), updateMode)
{
    spinBox->setStepCalculator(std::move(stepCalculator));
}

SpinBoxLgIndexPropertyBinding::SpinBoxLgIndexPropertyBinding(common::QLgIndexSpinBox* spinBox,
                                                             propertymanager::UIStylePropertyAbstract<long>& property,
                                                             WidgetUpdateMode_e updateMode,
                                                             common::QLgIndexSpinBox::StepCalculator stepCalculator)
    : SpinBoxPropertyBindingAbstract(spinBox, property, updateMode)
{
    spinBox->setStepCalculator(std::move(stepCalculator));
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
