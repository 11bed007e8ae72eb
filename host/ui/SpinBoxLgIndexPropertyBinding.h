#pragma once

#include "ui/QLgIndexSpinBox.h"
#include "ui/SteppedSpinBoxPropertyBinding.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties an index property to a spin box in "Mx" notation.
class SpinBoxLgIndexPropertyBinding : public SteppedSpinBoxPropertyBinding<long, common::QLgIndexSpinBox>
{
public:
    using SteppedSpinBoxPropertyBinding::SteppedSpinBoxPropertyBinding;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
