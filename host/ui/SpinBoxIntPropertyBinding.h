#pragma once

#include "ui/SpinBoxPropertyBindingAbstract.h"

#include <QSpinBox>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties an int property to a spin box of whole numbers.
class SpinBoxIntPropertyBinding : public SpinBoxPropertyBindingAbstract<int, QSpinBox>
{
public:
    SpinBoxIntPropertyBinding(QSpinBox* spinBox, boost::shared_ptr<PropertyAbstract<int>> property,
                              WidgetUpdateMode_e updateMode)
        : SpinBoxPropertyBindingAbstract(spinBox, std::move(property), updateMode)
    {}

    SpinBoxIntPropertyBinding(QSpinBox* spinBox, propertymanager::UIStylePropertyAbstract<int>& property,
                              WidgetUpdateMode_e updateMode)
        : SpinBoxPropertyBindingAbstract(spinBox, property, updateMode)
    {}
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
