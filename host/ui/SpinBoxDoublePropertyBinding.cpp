#include "ui/SpinBoxDoublePropertyBinding.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

SpinBoxDoublePropertyBinding::SpinBoxDoublePropertyBinding(common::QScientificSpinBox* spinBox,
                                                           boost::shared_ptr<PropertyAbstract<double>> property,
                                                           WidgetUpdateMode_e updateMode,
                                                           common::QScientificSpinBox::StepCalculator stepCalculator)
    : SpinBoxPropertyBindingAbstract(spinBox, std::move(property), updateMode)
{
    spinBox->setStepCalculator(std::move(stepCalculator));
}

SpinBoxDoublePropertyBinding::SpinBoxDoublePropertyBinding(common::QScientificSpinBox* spinBox,
                                                           propertymanager::UIStylePropertyAbstract<double>& property,
                                                           WidgetUpdateMode_e updateMode,
                                                           common::QScientificSpinBox::StepCalculator stepCalculator)
    : SpinBoxPropertyBindingAbstract(spinBox, property, updateMode)
{
    spinBox->setStepCalculator(std::move(stepCalculator));
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
