#pragma once

#include "ui/QScientificSpinBox.h"
#include "ui/SpinBoxPropertyBindingAbstract.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a double property to a spin box of numbers of any magnitude.
/// A step calculator, where there is one, decides what the next value up or down is.
class SpinBoxDoublePropertyBinding : public SpinBoxPropertyBindingAbstract<double, common::QScientificSpinBox>
{
public:
    SpinBoxDoublePropertyBinding(common::QScientificSpinBox* spinBox,
                                 boost::shared_ptr<PropertyAbstract<double>> property, WidgetUpdateMode_e updateMode,
                                 common::QScientificSpinBox::StepCalculator stepCalculator = {});
    SpinBoxDoublePropertyBinding(common::QScientificSpinBox* spinBox,
                                 propertymanager::UIStylePropertyAbstract<double>& property,
                                 WidgetUpdateMode_e updateMode,
                                 common::QScientificSpinBox::StepCalculator stepCalculator = {});
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
