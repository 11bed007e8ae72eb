#pragma once

#include "ui/SpinBoxPropertyBindingAbstract.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a property to a spin box whose step calculator, where there is one, decides what the next value up or down is.
///
/// @tparam SpinBox  a spin box with setStepCalculator()
template<typename T, typename SpinBox>
class SteppedSpinBoxPropertyBinding : public SpinBoxPropertyBindingAbstract<T, SpinBox>
{
public:
    using typename BindingInterface::WidgetUpdateMode_e;
    using StepCalculator = typename SpinBox::StepCalculator;

    SteppedSpinBoxPropertyBinding(SpinBox* spinBox, boost::shared_ptr<PropertyAbstract<T>> property,
                                  WidgetUpdateMode_e updateMode, StepCalculator stepCalculator = {})
        : SpinBoxPropertyBindingAbstract<T, SpinBox>(spinBox, std::move(property), updateMode)
    {
        spinBox->setStepCalculator(std::move(stepCalculator));
    }

    SteppedSpinBoxPropertyBinding(SpinBox* spinBox, propertymanager::UIStylePropertyAbstract<T>& property,
                                  WidgetUpdateMode_e updateMode, StepCalculator stepCalculator = {})
        : SpinBoxPropertyBindingAbstract<T, SpinBox>(spinBox, property, updateMode)
    {
        spinBox->setStepCalculator(std::move(stepCalculator));
    }
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
