#pragma once

#include "ui/QScientificSpinBox.h"
#include "ui/SteppedSpinBoxPropertyBinding.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a double property to a spin box of numbers of any magnitude.
class SpinBoxDoublePropertyBinding : public SteppedSpinBoxPropertyBinding<double, common::QScientificSpinBox>
{
public:
    using SteppedSpinBoxPropertyBinding::SteppedSpinBoxPropertyBinding;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
