#pragma once

#include "ui/QLgIndexSpinBox.h"
#include "ui/SpinBoxPropertyBindingAbstract.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties an index property to a spin box in "Mx" notation.
/// A step calculator, where there is one, decides what the next value up or down is.
class SpinBoxLgIndexPropertyBinding : public SpinBoxPropertyBindingAbstract<long, common::QLgIndexSpinBox>
{
public:
    SpinBoxLgIndexPropertyBinding(common::QLgIndexSpinBox* spinBox, boost::shared_ptr<PropertyAbstract<long>> property,
                                  WidgetUpdateMode_e updateMode,
                                  common::QLgIndexSpinBox::StepCalculator stepCalculator = {});
    SpinBoxLgIndexPropertyBinding(common::QLgIndexSpinBox* spinBox,
                                  propertymanager::UIStylePropertyAbstract<long>& property,
                                  WidgetUpdateMode_e updateMode,
                                  common::QLgIndexSpinBox::StepCalculator stepCalculator = {});
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
